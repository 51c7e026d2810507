// SPDX-License-Identifier: MIT
// A notification in a status bar, as readers tell of at once and by its text alone: they cut off
// what they are saying, call the notification by no other word, and follow the caret as before.
// Both exist for the reader only.
#include "qt_announcer.h"

#include <QAccessibleObject>

namespace termvik {

namespace {

// Sooner than anyone has begun to listen, later than the next key of fingers that hurry.
constexpr int kRestMilliseconds = 60;

class ForReaders : public QAccessibleObject {
 public:
  ForReaders(QObject& object, QAccessible::Role role) : QAccessibleObject(&object), role_(role) {}

  QAccessible::Role role() const override { return role_; }
  QAccessible::State state() const override { return {}; }
  QString text(QAccessible::Text) const override { return {}; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(object()->parent());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

 private:
  QAccessible::Role role_;
};

class Utterance : public ForReaders {
 public:
  Utterance(QObject& object, const QString& utterance)
      : ForReaders(object, QAccessible::Notification), utterance_(utterance) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? utterance_ : QString();
  }

 private:
  const QString& utterance_;
};

}  // namespace

// Qt lets go of the interfaces together with their objects.
QtAnnouncer::QtAnnouncer(QWidget& window)
    : QObject(&window), notifications_{Notification(this), Notification(this)} {
  QAccessible::registerAccessibleInterface(new ForReaders(*this, QAccessible::StatusBar));
  for (Notification& each : notifications_) {
    QAccessible::registerAccessibleInterface(new Utterance(each, each.utterance));
  }
  rest_.setSingleShot(true);
  connect(&rest_, &QTimer::timeout, this, &QtAnnouncer::announce);
}

// What has not been heard by now is not worth hearing any more.
void QtAnnouncer::say(const QString& utterance) {
  for (Notification& each : notifications_) each.utterance.clear();
  next_ = utterance;
  rest_.start(kRestMilliseconds);
}

void QtAnnouncer::announce() {
  newest_ = 1 - newest_;
  Notification& newest = notifications_[newest_];
  newest.utterance = next_;
  QAccessibleEvent shown(&newest, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

}  // namespace termvik
