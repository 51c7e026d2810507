// SPDX-License-Identifier: MIT
// While Qt looks for a display and a way to show windows on it.
#pragma once

#include <QStringList>
#include <QtGlobal>

namespace termvik {

// As long as it is there, Qt's remarks wait. Where Qt finds that it cannot show windows, it would
// list its plug-ins and abort: the program says in a sentence what is missing, and ends with
// status 1.
class QtStart {
 public:
  QtStart();
  ~QtStart();
  QtStart(const QtStart&) = delete;
  QtStart& operator=(const QtStart&) = delete;

 private:
  static void take(QtMsgType type, const QMessageLogContext& context, const QString& message);

  static inline QStringList waiting_;  // a handler of messages knows nothing else
  QtMessageHandler before_;
};

}  // namespace termvik
