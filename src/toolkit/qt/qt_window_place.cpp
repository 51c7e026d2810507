// SPDX-License-Identifier: MIT
// Where a window stands, in twips and in pixels.
#include <algorithm>

#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "qt_text.h"
#include "qt_window.h"

namespace termvik {

namespace {

// A window manager on a busy machine may take ten seconds to say how wide its frame is, and may
// move the window about for half a second after that.
constexpr int kFrameLookMilliseconds = 25;
constexpr int kFrameLooks = 400;
constexpr int kLooksWithFrame = 20;

}  // namespace

void QtWindow::setOuterPlace(const Place& place) {
  const bool widens = place.width != Width();
  const bool heightens = place.height != Height();
  const bool resized = widens || heightens;
  wantsPosition_ = wantsPosition_ || place.left != Left() || place.top != Top();
  wantsWidth_ = wantsWidth_ || widens;
  wantsHeight_ = wantsHeight_ || heightens;
  placeWidget(place);
  if (resized && Resize) Resize();
}

// Brings the widget to the outer rectangle, as far as the program has asked for one.
void QtWindow::placeWidget(const Place& place) {
  const QRect outer = toQt(toPixels(place, kDpi));
  placing_ = true;
  QSize size = widget_->size();
  if (wantsWidth_) size.setWidth(std::max(1, outer.width() - frame_.left() - frame_.right()));
  if (wantsHeight_) size.setHeight(std::max(1, outer.height() - frame_.top() - frame_.bottom()));
  widget_->resize(size);
  if (wantsPosition_ && !widget_->testAttribute(Qt::WA_WState_Created)) {
    widget_->move(outer.topLeft());  // a window that is not yet made is placed by its frame
  } else if (wantsPosition_) {
    const QPoint client = outer.topLeft() + QPoint(frame_.left(), frame_.top());
    widget_->setGeometry(QRect(client, widget_->size()));
  }
  placing_ = false;
  const QRect now = outerPixels();
  QRect pixels = toQt(place_.pixels());
  if (wantsWidth_) pixels.setWidth(now.width());
  if (wantsHeight_) pixels.setHeight(now.height());
  if (wantsPosition_) pixels.moveTopLeft(now.topLeft());
  place_.set(place, fromQt(pixels), State() == WindowState::Normal);
  if (!frameKnown_) return;
  wantsWidth_ = false;
  wantsHeight_ = false;
  wantsPosition_ = false;
}

// Reckoned from the frame as it is now: QWidget::frameGeometry keeps the one it was first asked
// for.
QRect QtWindow::outerPixels() const { return widget_->geometry().marginsAdded(frame_); }

// The frame is known only some time after the window is seen; only then can the outer size that the
// program has set be kept.
void QtWindow::learnFrame() {
  if (widget_->windowHandle() == nullptr) return;
  frame_ = widget_->windowHandle()->frameMargins();
  if (frameKnown_ || frame_.isNull()) return;
  frameKnown_ = true;
  if (State() == WindowState::Normal) placeWidget(place_.outer());
}

void QtWindow::watchFrame() {
  auto* timer = new QTimer(widget_.get());
  QObject::connect(timer, &QTimer::timeout, widget_.get(),
                   [this, timer, looks = kFrameLooks]() mutable {
                     readPlace();
                     if (frameKnown_) looks = std::min(looks, kLooksWithFrame);
                     if (--looks > 0) return;
                     frameKnown_ = true;  // there is none
                     timer->deleteLater();
                   });
  timer->start(kFrameLookMilliseconds);
}

// Takes over what the user or the system has made of the window's place.
void QtWindow::readPlace() {
  if (placing_ || !open_ || !widget_->isVisible()) return;
  learnFrame();
  const PixelSize before = place_.pixels().size();
  place_.take(fromQt(outerPixels()), State() == WindowState::Normal, kDpi);
  if (place_.pixels().size() != before && Resize) Resize();
}

WindowState QtWindow::State() const {
  const Qt::WindowStates states = widget_->windowState();
  if (states.testFlag(Qt::WindowMinimized)) return WindowState::Minimised;
  return states.testFlag(Qt::WindowMaximized) ? WindowState::Maximised : WindowState::Normal;
}

void QtWindow::maximise() { widget_->setWindowState(widget_->windowState() | Qt::WindowMaximized); }

ScreenSize QtWindow::Screen() const {
  const QSize size = widget_->screen()->size();
  return {toTwips(size.width()), toTwips(size.height())};
}

}  // namespace termvik
