// SPDX-License-Identifier: MIT
// Ends the program in order, as a click on its window's cross does, where the session or the
// terminal ends or another program asks it to.
#pragma once

#include <memory>

#include <QSocketNotifier>

namespace termvik {

class QtEndRequests {
 public:
  QtEndRequests();  // before any thread is there: each takes over what its maker has blocked
  ~QtEndRequests();
  QtEndRequests(const QtEndRequests&) = delete;
  QtEndRequests& operator=(const QtEndRequests&) = delete;

  void follow();  // as soon as there is an application

 private:
  int descriptor_;  // readable when a request has come; -1 where the system gives none
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace termvik
