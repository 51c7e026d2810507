// SPDX-License-Identifier: MIT
// The menu and the controls of a window, made from its design.
#include <algorithm>

#include "win32_edit_box.h"
#include "win32_list_box.h"
#include "win32_names.h"
#include "win32_picture.h"
#include "win32_text.h"
#include "win32_text_box.h"
#include "win32_window.h"

namespace termvik {

namespace {

// What WM_COMMAND calls controls and menu items; the dialog keys have numbers below.
constexpr std::size_t kFirstControlId = 100;
constexpr UINT kFirstMenuId = 1000;

bool isDecoration(const ControlDesign& design) {
  switch (design.kind) {
    case ControlKind::Label:
    case ControlKind::PictureBox:
    case ControlKind::Frame:
    case ControlKind::Line:
      return true;
    default:
      return false;
  }
}

}  // namespace

HMENU Win32Window::makeMenu() {
  if (design().menu.empty()) return nullptr;
  const HMENU bar = CreateMenu();
  for (const MenuItemDesign& item : design().menu) {
    menuItems_.push_back(&addMenuItem(item));
    AppendMenuW(bar, MF_STRING | (item.enabled ? MF_ENABLED : MF_GRAYED),
                menuId(*menuItems_.back()), wide(item.caption).c_str());
  }
  return bar;
}

UINT Win32Window::menuId(const MenuItem& item) const {
  const auto found = std::find(menuItems_.begin(), menuItems_.end(), &item);
  return kFirstMenuId + static_cast<UINT>(found - menuItems_.begin());
}

void Win32Window::addControls(const Collation& collation) {
  for (const ControlDesign& control : design().controls) {
    addControl(makeControl(control, collation));
    giveSpokenNames(win32Widget(*controls().back()).handle(), control.accessibleName,
                    control.accessibleGroup);
  }
  for (const auto& control : controls()) {
    if (auto* option = dynamic_cast<Win32OptionButton*>(control.get())) option->showValue();
  }
  putDecorationsBehind();
  applyFonts();
}

std::unique_ptr<Control> Win32Window::makeControl(const ControlDesign& design,
                                                  const Collation& collation) {
  switch (design.kind) {
    case ControlKind::EditBox:
      return std::make_unique<Win32EditBox>(*this, design);
    case ControlKind::TextBox:
      return std::make_unique<Win32TextBox>(*this, design);
    case ControlKind::ListBox:
      return std::make_unique<Win32ListBox>(*this, design, collation);
    case ControlKind::OptionButton:
      return std::make_unique<Win32OptionButton>(*this, design, groupOf(design));
    case ControlKind::CheckBox:
      return std::make_unique<Win32CheckBox>(*this, design);
    case ControlKind::CommandButton:
      return std::make_unique<Win32CommandButton>(*this, design);
    case ControlKind::PictureBox:
      return std::make_unique<Win32Picture>(*this, design);
    default:
      return makeWin32Decoration(*this, design);
  }
}

// Where a small window makes controls overlap, the ones that take input stay in sight, and of the
// others the later ones.
void Win32Window::putDecorationsBehind() const {
  HWND lastInput = HWND_TOP;
  for (const auto& control : controls()) {
    if (!isDecoration(control->design())) lastInput = win32Widget(*control).handle();
  }
  for (const auto& control : controls()) {
    if (!isDecoration(control->design())) continue;
    SetWindowPos(win32Widget(*control).handle(), lastInput, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

DWORD Win32Window::commonStyle(const ControlDesign& design) const {
  DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
  if (design.tabStop && !isDecoration(design)) style |= WS_TABSTOP;
  // The arrow keys go about from one control with this style to the next.
  const bool goesOn = design.index != ControlDesign::kNoIndex && !controls().empty() &&
                      controls().back()->design().name == design.name;
  return goesOn ? style : style | WS_GROUP;
}

HMENU Win32Window::nextId() const {
  return reinterpret_cast<HMENU>(kFirstControlId + controls().size());
}

bool Win32Window::isTabStop(const OptionButton& option) const {
  const OptionButton* first = nullptr;
  for (const auto& control : controls()) {
    if (control->design().name != option.design().name) continue;
    const auto& other = dynamic_cast<const OptionButton&>(*control);
    if (other.Value()) return &other == &option;
    if (first == nullptr) first = &other;
  }
  return first == &option;
}

MenuItem* Win32Window::menuItemOf(UINT id) const {
  const bool isItem = id >= kFirstMenuId && id - kFirstMenuId < menuItems_.size();
  return isItem ? menuItems_[id - kFirstMenuId] : nullptr;
}

Control* Win32Window::controlOf(HWND child) const {
  for (const auto& control : controls()) {
    if (win32Widget(*control).handle() == child) return control.get();
  }
  return nullptr;
}

Control* Win32Window::controlWith(bool ControlDesign::*role) const {
  for (const auto& control : controls()) {
    if (control->design().*role) return control.get();
  }
  return nullptr;
}

}  // namespace termvik
