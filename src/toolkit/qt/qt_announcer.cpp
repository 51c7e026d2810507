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

class Notification : public ForReaders {
 public:
  Notification(QObject& object, const QString& utterance)
      : ForReaders(object, QAccessible::Notification), utterance_(utterance) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? utterance_ : QString();
  }

 private:
  const QString& utterance_;
};

}  // namespace

// Qt lets go of the interfaces together with their objects.
QtAnnouncer::QtAnnouncer(QWidget& window) : QObject(&window), notification_(this) {
  QAccessible::registerAccessibleInterface(new ForReaders(*this, QAccessible::StatusBar));
  QAccessible::registerAccessibleInterface(new Notification(notification_, utterance_));
  rest_.setSingleShot(true);
  connect(&rest_, &QTimer::timeout, this, &QtAnnouncer::announce);
}

void QtAnnouncer::say(const QString& utterance) {
  utterance_ = utterance;
  rest_.start(kRestMilliseconds);
}

void QtAnnouncer::announce() {
  QAccessibleEvent shown(&notification_, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

}  // namespace termvik
