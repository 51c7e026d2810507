// SPDX-License-Identifier: MIT
#include "qt_end_requests.h"

#include <csignal>
#include <initializer_list>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>

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

// Quitting closes the windows, a modal one first, and the main window saves what it remembers.
void QtEndRequests::follow() {
  if (descriptor_ < 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
    signalfd_siginfo request{};
    if (read(descriptor_, &request, sizeof request) > 0) QCoreApplication::quit();
  });
}

}  // namespace termvik
