// SPDX-License-Identifier: MIT
// What the window says to a screen reader without a change of its focus.
#pragma once

#include <QTimer>
#include <QWidget>

namespace termvik {

class QtAnnouncer : public QObject {
 public:
  explicit QtAnnouncer(QWidget& window);

  // The newest utterance, once no other has come for a moment.
  void say(const QString& utterance);

 private:
  void announce();

  QString utterance_;
  QObject notification_;
  QTimer rest_;
};

}  // namespace termvik
