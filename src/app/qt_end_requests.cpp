// SPDX-License-Identifier: MIT
#include "qt_end_requests.h"

#include <csignal>
#include <initializer_list>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QApplication>

namespace termvik {

QtEndRequests::QtEndRequests() {
  sigset_t requests;
  sigemptyset(&requests);
  for (const int request : {SIGTERM, SIGHUP, SIGINT}) sigaddset(&requests, request);
  descriptor_ = signalfd(-1, &requests, SFD_CLOEXEC | SFD_NONBLOCK);
  if (descriptor_ >= 0) sigprocmask(SIG_BLOCK, &requests, nullptr);
}

QtEndRequests::~QtEndRequests() {
  notifier_.reset();
  if (descriptor_ >= 0) close(descriptor_);
}

// Closes the windows, a modal one first, and the main window saves what it remembers. The request
// stays unread, so that this goes on until the program can quit: the start's messages come before
// its loop, one after the other.
void QtEndRequests::follow() {
  if (descriptor_ < 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [] {
    QApplication::closeAllWindows();
    QCoreApplication::quit();
  });
}

}  // namespace termvik
