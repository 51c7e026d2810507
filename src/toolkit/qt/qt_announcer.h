// SPDX-License-Identifier: MIT
// What the window says to a screen reader without a change of its focus.
#pragma once

#include <array>

#include <QTimer>
#include <QWidget>

namespace termvik {

class QtAnnouncer : public QObject {
 public:
  explicit QtAnnouncer(QWidget& window);

  // The newest utterance, once no other has come for a moment.
  void say(const QString& utterance);

 private:
  struct Notification : QObject {
    using QObject::QObject;
    QString utterance;
  };

  void announce();

  QString next_;
  // They take turns, since a reader that is late asks for the words of the one before only then.
  std::array<Notification, 2> notifications_;
  std::size_t newest_ = 0;
  QTimer rest_;
};

}  // namespace termvik
