#include "toolkit/qt/qt_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QProxyStyle>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QWindow>

#include "toolkit/qt/qt_article_box.h"
#include "toolkit/qt/qt_fonts.h"
#include "toolkit/qt/qt_list_box.h"
#include "toolkit/qt/qt_search_box.h"
#include "toolkit/qt/qt_text.h"
#include "toolkit/qt/qt_toolkit.h"

namespace termvik {

namespace {

// The items of the menu bar stand close enough for all of them to be seen at the design's width.
class CloseItemsStyle : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    if (metric == PM_MenuBarItemSpacing) return 0;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }
};

// How long a window manager may take to say how wide its frame is.
constexpr int kFrameLookMilliseconds = 25;
constexpr int kFrameLooks = 20;

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

  // Sees what comes to the menu bar.
  bool eventFilter(QObject* object, QEvent* event) override {
    const bool isEscape = event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!isEscape) return QMainWindow::eventFilter(object, event);
    window_.leaveMenuBar();
    return true;
  }

  // Presses that no control has taken come here.
  void mousePressEvent(QMouseEvent*) override {
    if (window_.open_ && window_.Click) window_.Click();
  }

 private:
  QtWindow& window_;
  bool active_ = false;
};

QtWindow::QtWindow(QtToolkit& toolkit, const Collation& collation, const WindowDesign& design)
    : Window(design),
      toolkit_(toolkit),
      widget_(std::make_unique<MainWindow>(
          *this, design.hasTitleBar ? Qt::Window : Qt::Dialog | Qt::FramelessWindowHint)) {
  widget_->setObjectName(toQt(design.name));
  widget_->setWindowTitle(toQt(design.caption));
  addControls(collation);
  addKeys();
  const int menuHeight = design.menu.empty() ? 0 : widget_->menuBar()->sizeHint().height();
  placing_ = true;
  widget_->resize(toPixels(design.clientWidth), toPixels(design.clientHeight) + menuHeight);
  placing_ = false;
  const QSize size = widget_->size();
  const QSize room = widget_->screen()->size() - size;
  outer_ = {toTwips(room.width() / 2), toTwips(room.height() / 2), toTwips(size.width()),
            toTwips(size.height())};
  placed_ = outerPixels();
  toolkit_.opened(*this);
}

QtWindow::~QtWindow() { QtWindow::Unload(); }

QMainWindow& QtWindow::widget() { return *widget_; }

void QtWindow::addControls(const Collation& collation) {
  const QFont font = captionFont(design());
  if (!design().menu.empty()) addMenu(font);
  for (const ControlDesign& control : design().controls) addControl(control, font, collation);
  setTabOrder();
}

void QtWindow::setTabOrder() {
  QWidget* previous = nullptr;
  for (const auto& control : controls()) {
    QWidget* widget = qtWidget(*control);
    if (widget->focusPolicy() == Qt::NoFocus) continue;
    if (previous != nullptr) QWidget::setTabOrder(previous, widget);
    previous = widget;
  }
}

void QtWindow::addControl(const ControlDesign& design, const QFont& captionFont,
                          const Collation& collation) {
  QWidget* parent = containerOf(design);
  std::unique_ptr<Control> control;
  switch (design.kind) {
    case ControlKind::TextBox:
      if (design.multiLine) {
        control = std::make_unique<QtArticleBox>(parent, design);
      } else {
        control = std::make_unique<QtSearchBox>(parent, design);
      }
      break;
    case ControlKind::ListBox:
      control = std::make_unique<QtListBox>(parent, design, collation);
      break;
    case ControlKind::OptionButton:
      control =
          std::make_unique<QtOptionButton>(parent, design, groupOf(design), exclusiveGroup(design));
      break;
    case ControlKind::CheckBox:
      control = std::make_unique<QtCheckBox>(parent, design);
      break;
    case ControlKind::CommandButton:
      control = std::make_unique<QtCommandButton>(parent, design);
      break;
    default:
      control = makeQtDecoration(parent, design);
  }
  QWidget* widget = qtWidget(*control);
  widget->setObjectName(toQt(design.name));
  widget->setFont(design.font.points > 0 ? designedFont(design.font) : captionFont);
  if (!design.caption.empty()) shrinkToFit(*widget, design);
  if (!design.accessibleName.empty()) widget->setAccessibleName(toQt(design.accessibleName));
  if (!design.tabStop) widget->setFocusPolicy(Qt::ClickFocus);
  applyColours(*widget, design);
  Window::addControl(std::move(control));
}

QButtonGroup& QtWindow::exclusiveGroup(const ControlDesign& design) {
  const QString name = toQt(design.name);
  if (auto* group = widget_->findChild<QButtonGroup*>(name)) return *group;
  auto* group = new QButtonGroup(widget_.get());
  group->setObjectName(name);
  return *group;
}

QWidget* QtWindow::containerOf(const ControlDesign& design) const {
  return design.container.empty() ? widget_->centralWidget() : qtWidget(control(design.container));
}

void QtWindow::addMenu(const QFont& captionFont) {
  QMenuBar& bar = *widget_->menuBar();
  // A global menu bar shows only items that have menus; ours have none.
  bar.setNativeMenuBar(false);
  auto* style = new CloseItemsStyle;
  style->setParent(&bar);
  bar.setStyle(style);
  for (const MenuItemDesign& design : design().menu) {
    MenuItem& item = addMenuItem(design);
    QAction* action = bar.addAction(toQt(design.caption));
    action->setObjectName(toQt(design.name));
    action->setEnabled(design.enabled);
    QObject::connect(action, &QAction::triggered, action, [this, &item] {
      leaveMenuBar();
      item.userChooses();
    });
    actions_.emplace_back(&item, action);
  }
  fitMenuBar(bar, captionFont, toPixels(design().clientWidth));
}

void QtWindow::addKeys() {
  const auto onKey = [this](Qt::Key key, auto act) {
    QObject::connect(new QShortcut(key, widget_.get()), &QShortcut::activated, widget_.get(), act);
  };
  if (!actions_.empty()) {
    onKey(Qt::Key_F10, [this] { focusMenuBar(); });
    widget_->menuBar()->installEventFilter(widget_.get());
  }
  for (const auto& control : controls()) {
    auto* button = qobject_cast<QPushButton*>(qtWidget(*control));
    if (button == nullptr) continue;
    if (control->design().isDefault) {
      onKey(Qt::Key_Return, [button] { button->click(); });
      onKey(Qt::Key_Enter, [button] { button->click(); });
    }
    if (control->design().isCancel) onKey(Qt::Key_Escape, [button] { button->click(); });
  }
}

void QtWindow::focusMenuBar() {
  QMenuBar& bar = *widget_->menuBar();
  if (!bar.hasFocus()) focusBehindMenu_ = QApplication::focusWidget();
  bar.setFocus(Qt::MenuBarFocusReason);
  bar.setActiveAction(actions_.front().second);
}

// The focus goes back to where it was before F10.
void QtWindow::leaveMenuBar() {
  widget_->menuBar()->setActiveAction(nullptr);
  if (widget_->menuBar()->hasFocus() && focusBehindMenu_) focusBehindMenu_->setFocus();
}

QAction* QtWindow::action(const MenuItem& item) const {
  for (const auto& [candidate, action] : actions_) {
    if (candidate == &item) return action;
  }
  return nullptr;
}

void QtWindow::setOuterPlace(const Place& place) {
  const bool resized = place.width != outer_.width || place.height != outer_.height;
  wantsPosition_ = wantsPosition_ || place.left != outer_.left || place.top != outer_.top;
  wantsSize_ = wantsSize_ || resized;
  outer_ = place;
  placeWidget();
  if (resized && Resize) Resize();
}

// Brings the widget to the outer rectangle, as far as the program has asked for one.
void QtWindow::placeWidget() {
  const QRect outer = toPixels(outer_);
  placing_ = true;
  if (wantsSize_) {
    widget_->resize(std::max(1, outer.width() - frame_.left() - frame_.right()),
                    std::max(1, outer.height() - frame_.top() - frame_.bottom()));
  }
  if (wantsPosition_ && !widget_->testAttribute(Qt::WA_WState_Created)) {
    widget_->move(outer.topLeft());  // a window that is not yet made is placed by its frame
  } else if (wantsPosition_) {
    const QPoint client = outer.topLeft() + QPoint(frame_.left(), frame_.top());
    widget_->setGeometry(QRect(client, widget_->size()));
  }
  placing_ = false;
  const QRect now = outerPixels();
  if (wantsSize_) placed_.setSize(now.size());
  if (wantsPosition_) placed_.moveTopLeft(now.topLeft());
  if (!frameKnown_) return;
  wantsSize_ = false;
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
  if (State() == WindowState::Normal) placeWidget();
}

void QtWindow::watchFrame() {
  auto* timer = new QTimer(widget_.get());
  QObject::connect(timer, &QTimer::timeout, widget_.get(), [this, timer, looks = 0]() mutable {
    QtToolkit::showIcon();
    readPlace();
    if (++looks < kFrameLooks) return;
    frameKnown_ = true;  // there is none
    timer->deleteLater();
  });
  timer->start(kFrameLookMilliseconds);
}

// Takes over what the user or the system has made of the window's place.
void QtWindow::readPlace() {
  if (placing_ || !open_ || !widget_->isVisible()) return;
  learnFrame();
  const QRect now = outerPixels();
  const QRect before = std::exchange(placed_, now);
  // Each measure by itself: what has not changed keeps the fraction that the program gave it.
  if (now.left() != before.left()) outer_.left = toTwips(now.left());
  if (now.top() != before.top()) outer_.top = toTwips(now.top());
  if (now.width() != before.width()) outer_.width = toTwips(now.width());
  if (now.height() != before.height()) outer_.height = toTwips(now.height());
  if (now.size() != before.size() && Resize) Resize();
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

void QtWindow::Show() {
  if (Resize) Resize();
  widget_->show();
  if (!wantsPosition_) {  // the system has chosen it
    placed_.moveTopLeft(outerPixels().topLeft());
    outer_.left = toTwips(placed_.left());
    outer_.top = toTwips(placed_.top());
  }
  readPlace();
  watchFrame();
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

void QtWindow::userCloses() {
  if (!open_) return;
  if (QueryUnload) QueryUnload();
  Unload();
}

}  // namespace termvik
