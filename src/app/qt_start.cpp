// SPDX-License-Identifier: MIT
#include "qt_start.h"

#include <cstdio>
#include <cstdlib>

namespace termvik {

QtStart::QtStart() : before_(qInstallMessageHandler(&take)) {}

QtStart::~QtStart() {
  qInstallMessageHandler(before_);
  for (const QString& message : waiting_) std::fprintf(stderr, "%s\n", qPrintable(message));
  waiting_.clear();
}

void QtStart::take(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type != QtFatalMsg) {
    waiting_ << qFormatLogMessage(type, context, message);
    return;
  }
  const bool hasDisplay =
      !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  std::fputs(hasDisplay
                 ? "Termvik cannot show windows on this display; Qt needs the package qt6-wayland "
                   "for Wayland, libxcb-cursor0 for X11\n"
                 : "Termvik needs a desktop to show its window on: neither DISPLAY nor "
                   "WAYLAND_DISPLAY is set\n",
             stderr);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace termvik
