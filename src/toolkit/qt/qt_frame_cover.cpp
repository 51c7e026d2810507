// SPDX-License-Identifier: MIT
#include "qt_frame_cover.h"

#include <cmath>

#include <QEvent>
#include <QPainter>

namespace termvik {

namespace {

constexpr int kBandWidth = 2;

}  // namespace

QtFrameCover::QtFrameCover(QAbstractScrollArea& area) : QWidget(&area), area_(area) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  area.installEventFilter(this);
}

bool QtFrameCover::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Show:
      setGeometry(area_.rect());
      raise();
      break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      update();
      break;
    default:
      break;
  }
  return false;
}

void QtFrameCover::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRegion inside = rect().adjusted(kBandWidth, kBandWidth, -kBandWidth, -kBandWidth);
  painter.setClipRegion(QRegion(rect()) - inside);
  if (area_.hasFocus()) {
    painter.fillRect(rect(), palette().highlight());
    return;
  }
  const double ratio = devicePixelRatioF();
  if (ratio == std::floor(ratio)) return;
  painter.fillRect(rect(), palette().base());
  painter.setClipRegion(QRegion(rect()) - rect().adjusted(1, 1, -1, -1));
  painter.fillRect(rect(), palette().mid());
}

}  // namespace termvik
