// SPDX-License-Identifier: MIT
// The menu, the controls and the keys of a window, made from its design.
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QProxyStyle>
#include <QToolButton>

#include "qt_edit_box.h"
#include "qt_fonts.h"
#include "qt_list_box.h"
#include "qt_text_box.h"
#include "qt_window.h"

namespace termvik {

namespace {

// The items of the menu bar stand close enough for all of them to be seen at the design's width.
class CloseItemsStyle : public QProxyStyle {
 public:
  // A person who goes about by keys alone finds what is switched off too.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    if (hint == SH_Menu_AllowActiveAndDisabled) return 1;
    return QProxyStyle::styleHint(hint, option, widget, more);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    if (metric == PM_MenuBarItemSpacing) return 0;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }
};

}  // namespace

void QtWindow::addControls(const Collation& collation) {
  const QFont font = captionFont(design());
  widget_->setFont(font);  // for what is shown beside the controls
  if (!design().menu.empty()) addMenu(font);
  // Tab goes through them in the order in which they are made.
  for (const ControlDesign& control : design().controls) addControl(control, font, collation);
}

void QtWindow::addControl(const ControlDesign& design, const QFont& captionFont,
                          const Collation& collation) {
  QWidget* parent = containerOf(design);
  std::unique_ptr<Control> control;
  switch (design.kind) {
    case ControlKind::EditBox:
      control = std::make_unique<QtEditBox>(parent, design);
      break;
    case ControlKind::TextBox:
      control = std::make_unique<QtTextBox>(parent, design);
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
  if (!design.accessibleGroup.empty()) {
    widget->setAccessibleDescription(toQt(design.accessibleGroup));
  }
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
  // By this the bar waits for a tap on Alt, which would take the keyboard from the search box and
  // show nothing. F10 opens the bar.
  widget_->removeEventFilter(&bar);
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
  bar.installEventFilter(widget_.get());
  fitMenuBar(bar, captionFont, toPixels(design().clientWidth));
  // Later, since the bar has not yet taken it for the one that the keys are at.
  QObject::connect(
      &bar, &QMenuBar::hovered, &bar, [this](QAction* action) { showHiddenItem(action); },
      Qt::QueuedConnection);
}

// The arrow keys reach items too that do not fit into a narrow window: they are shown in the menu
// of those items.
void QtWindow::showHiddenItem(QAction* action) {
  QMenuBar& bar = *widget_->menuBar();
  const auto* more = bar.findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
  const bool isHidden = !bar.rect().contains(bar.actionGeometry(action).center());
  if (!isHidden || !bar.hasFocus() || bar.activeAction() != action || more == nullptr) return;
  QMenu* menu = more->menu();
  if (menu == nullptr || menu->isVisible()) return;
  QObject::connect(
      menu, &QMenu::aboutToHide, &bar, [this] { leaveMenuBar(); }, Qt::SingleShotConnection);
  menu->popup(more->mapToGlobal(QPoint(0, more->height())));
  menu->setActiveAction(action);
}

// For keys that the control with the focus has no use for. Not by shortcuts, which Qt keeps from
// screen readers: they stop speaking at each key that they hear of.
bool QtWindow::userPressesKey(int key) {
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  for (const auto& control : controls()) {
    const bool presses = (isEnter && control->design().isDefault) ||
                         (key == Qt::Key_Escape && control->design().isCancel);
    if (!presses) continue;
    static_cast<QPushButton*>(qtWidget(*control))->click();
    return true;
  }
  if (key != Qt::Key_F10 || actions_.empty()) return false;
  widget_->menuBar()->hasFocus() ? leaveMenuBar() : focusMenuBar();
  return true;
}

void QtWindow::focusMenuBar() {
  QMenuBar& bar = *widget_->menuBar();
  focusBehindMenu_ = QApplication::focusWidget();
  bar.setFocus(Qt::MenuBarFocusReason);
  bar.setActiveAction(actions_.front().second);
}

// The focus goes back to where it was before F10.
void QtWindow::leaveMenuBar() {
  widget_->menuBar()->setActiveAction(nullptr);
  if (widget_->menuBar()->hasFocus() && focusBehindMenu_) focusBehindMenu_->setFocus();
}

// Qt tells screen readers only of items that are on.
void QtWindow::tellOfSwitchedOffItem() {
  QMenuBar& bar = *widget_->menuBar();
  const QAction* active = bar.activeAction();
  if (!QAccessible::isActive() || active == nullptr || active->isEnabled()) return;
  QAccessibleEvent reached(&bar, QAccessible::Focus);
  reached.setChild(static_cast<int>(bar.actions().indexOf(active)));
  QAccessible::updateAccessibility(&reached);
}

QAction* QtWindow::action(const MenuItem& item) const {
  for (const auto& [candidate, action] : actions_) {
    if (candidate == &item) return action;
  }
  return nullptr;
}

}  // namespace termvik
