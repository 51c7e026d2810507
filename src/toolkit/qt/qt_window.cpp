// SPDX-License-Identifier: MIT
#include "qt_window.h"

#include <algorithm>
#include <utility>

#include <QAccessible>
#include <QCloseEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QMenuBar>
#include <QTimer>

#include "qt_announcer.h"
#include "qt_controls.h"
#include "qt_text.h"
#include "toolkit/qt/qt_toolkit.h"

namespace termvik {

namespace {

// The window is there by then; to decode the icon's pictures sooner would hold it up.
constexpr int kIconMilliseconds = 25;

}  // namespace

class QtWindow::MainWindow : public QMainWindow {
 public:
  MainWindow(QtWindow& window, Qt::WindowFlags flags)
      : QMainWindow(nullptr, flags), window_(window) {
    setMinimumSize(1, 1);  // the layout has no lower limit
    auto* client = new QFrame(this);
    // A window without a frame of the desktop's gets a line around it.
    if (flags.testFlag(Qt::FramelessWindowHint)) client->setFrameStyle(QFrame::Box | QFrame::Plain);
    setCentralWidget(client);
  }

 protected:
  void moveEvent(QMoveEvent*) override { window_.readPlace(); }

  void resizeEvent(QResizeEvent* event) override {
    QMainWindow::resizeEvent(event);
    window_.readPlace();
  }

  void closeEvent(QCloseEvent* event) override {
    event->accept();
    window_.userCloses();
  }

  void changeEvent(QEvent* event) override {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) window_.readPlace();
    if (event->type() != QEvent::ActivationChange) return;
    const bool wasActive = std::exchange(active_, isActiveWindow());
    if (wasActive && !active_ && window_.open_ && window_.Deactivate) window_.Deactivate();
  }

  void keyPressEvent(QKeyEvent* event) override {
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    if (!isPlain || !window_.userPressesKey(event->key())) QMainWindow::keyPressEvent(event);
  }

  // Sees what comes to the menu bar.
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::KeyRelease) window_.tellOfSwitchedOffItem();
    const bool isEscape = event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!isEscape) return QMainWindow::eventFilter(object, event);
    window_.leaveMenuBar();
    return true;
  }

  // Presses and releases that no control has taken come here.
  void mousePressEvent(QMouseEvent* event) override {
    pressed_ = event->button() == Qt::LeftButton && window_.isBareAt(event->pos());
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool clicks = event->button() == Qt::LeftButton && std::exchange(pressed_, false) &&
                        window_.isBareAt(event->pos());
    if (clicks && window_.open_ && window_.Click) window_.Click();
  }

 private:
  QtWindow& window_;
  bool active_ = false;
  bool pressed_ = false;  // the mouse, on the bare surface
};

QtWindow::QtWindow(QtToolkit& toolkit, const Collation& collation, const WindowDesign& design)
    : Window(design),
      toolkit_(toolkit),
      widget_(std::make_unique<MainWindow>(
          *this, design.hasTitleBar ? Qt::Window : Qt::Dialog | Qt::FramelessWindowHint)) {
  widget_->setObjectName(toQt(design.name));
  widget_->setWindowTitle(toQt(design.caption));
  if (!design.accessibleName.empty()) widget_->setAccessibleName(toQt(design.accessibleName));
  addControls(collation);
  const int menuHeight = design.menu.empty() ? 0 : widget_->menuBar()->sizeHint().height();
  placing_ = true;
  widget_->resize(toPixels(design.clientWidth), toPixels(design.clientHeight) + menuHeight);
  placing_ = false;
  const QSize size = widget_->size();
  const QSize room = widget_->screen()->size() - size;
  const PixelRect outer = fromQt(QRect({room.width() / 2, room.height() / 2}, size));
  place_.set(toTwips(outer, kDpi), outer, true);
  toolkit_.opened(*this);
}

QtWindow::~QtWindow() { QtWindow::Unload(); }

QMainWindow& QtWindow::widget() { return *widget_; }

// Labels, pictures, frames and what is switched off let the mouse through and are controls all the
// same. A line is none: it parts the bare surface.
bool QtWindow::isBareAt(QPoint position) const {
  const QWidget* at = widget_->childAt(position);
  if (at == widget_->centralWidget()) return true;
  return std::any_of(controls().begin(), controls().end(), [at](const auto& control) {
    return control->design().kind == ControlKind::Line && qtWidget(*control) == at;
  });
}

void QtWindow::Show() {
  if (Resize) Resize();
  widget_->show();
  readPlace();
  watchFrame();
  QTimer::singleShot(kIconMilliseconds, widget_.get(), &QtToolkit::showIcon);
}

void QtWindow::ShowModal() {
  widget_->setWindowModality(Qt::ApplicationModal);
  Show();
  widget_->activateWindow();
  if (open_) modalLoop_.exec();
}

void QtWindow::Unload() {
  if (!open_) return;
  open_ = false;
  toolkit_.closed(*this);
  widget_->hide();
  modalLoop_.quit();
}

bool QtWindow::hasListener() const { return QAccessible::isActive(); }

// What the reader says by itself comes first, and only the next key cuts it off.
void QtWindow::speak(TextView, TextView news) {
  if (announcer_ == nullptr) announcer_ = new QtAnnouncer(*widget_);
  announcer_->say(toQt(news));
}

void QtWindow::userCloses() {
  if (!open_) return;
  if (QueryUnload) QueryUnload();
  Unload();
}

}  // namespace termvik
