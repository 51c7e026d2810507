// SPDX-License-Identifier: MIT
#include "memory_controls.h"

#include <utility>

namespace termvik {

namespace {

// The frame of a window on a plain desktop, in twips.
constexpr float kBorder = 60;
constexpr float kTitleBar = 345;
constexpr float kMenuBar = 285;
constexpr float kFirstLeft = 1500;
constexpr float kFirstTop = 1500;

Place firstPlace(const WindowDesign& design) {
  if (!design.hasTitleBar) return {kFirstLeft, kFirstTop, design.clientWidth, design.clientHeight};
  const float menu = design.menu.empty() ? 0 : kMenuBar;
  return {kFirstLeft, kFirstTop, design.clientWidth + 2 * kBorder,
          design.clientHeight + 2 * kBorder + kTitleBar + menu};
}

}  // namespace

void MemoryEditBox::setSelStart(std::int32_t start) {
  start_ = std::clamp(start, 0, size());
  length_ = 0;
}

void MemoryEditBox::setSelLength(std::int32_t length) {
  length_ = std::clamp(length, 0, size() - start_);
}

void MemoryEditBox::userReplacesSelection(TextView text) {
  text_.replace(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_), text);
  start_ += static_cast<std::int32_t>(text.size());
  length_ = 0;
  userEdits();
}

void MemoryEditBox::userTypes(char16_t character) {
  if (!userPressesKey(keys::kOther) || !userGivesCharacter(character)) return;
  userReplacesSelection(TextView(&character, 1));
}

void MemoryEditBox::userPresses(std::int16_t keyCode) {
  if (userPressesKey(keyCode) && keyCode == keys::kEnter) userGivesCharacter(keys::kEnter);
}

void MemoryListBox::userPresses(std::int16_t keyCode) {
  if (ListCount() == 0) return;
  const std::int32_t step = keyCode == keys::kDown ? 1 : keyCode == keys::kUp ? -1 : 0;
  const std::int32_t row = std::clamp(ListIndex() + step, 0, ListCount() - 1);
  userSelects(row);
}

MemoryWindow::MemoryWindow(MemoryToolkit& toolkit, const WindowDesign& design)
    : Window(design), toolkit_(toolkit), place_(firstPlace(design)), normalPlace_(place_) {
  for (const ControlDesign& control : design.controls) addControl(control);
  for (const MenuItemDesign& item : design.menu) addMenuItem(item);
  toolkit_.open_.push_back(this);
}

void MemoryWindow::addControl(const ControlDesign& design) {
  const auto add = [this](auto control) { Window::addControl(std::move(control)); };
  switch (design.kind) {
    case ControlKind::EditBox:
      return add(std::make_unique<MemoryEditBox>(design));
    case ControlKind::TextBox:
      return add(std::make_unique<MemoryTextBox>(design));
    case ControlKind::ListBox:
      return add(std::make_unique<MemoryListBox>(design, *toolkit_.collation_));
    case ControlKind::OptionButton:
      return add(std::make_unique<MemoryOptionButton>(design, groupOf(design)));
    case ControlKind::CheckBox:
      return add(std::make_unique<MemoryCheckBox>(design));
    case ControlKind::CommandButton:
      return add(std::make_unique<MemoryCommandButton>(design));
    case ControlKind::PictureBox:
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Line:
      return add(std::make_unique<Unseen<Control>>(design));
  }
}

void MemoryWindow::setOuterPlace(const Place& place) {
  const bool resized = place.width != place_.width || place.height != place_.height;
  place_ = place;
  if (state_ == WindowState::Normal) normalPlace_ = place;
  if (resized && Resize) Resize();
}

void MemoryWindow::maximise() {
  state_ = WindowState::Maximised;
  setOuterPlace({0, 0, Screen().Width, Screen().Height});
}

void MemoryWindow::userMinimises() {
  if (state_ == WindowState::Minimised) return;
  stateBehindIcon_ = std::exchange(state_, WindowState::Minimised);
}

void MemoryWindow::userRestores() {
  if (state_ == WindowState::Minimised) {
    state_ = stateBehindIcon_;
    return;
  }
  state_ = WindowState::Normal;
  setOuterPlace(normalPlace_);
}

void MemoryWindow::Show() {
  if (Resize) Resize();
}

void MemoryWindow::ShowModal() {
  Show();
  if (toolkit_.showModal) toolkit_.showModal(*this);
  Unload();
}

void MemoryWindow::Unload() { std::erase(toolkit_.open_, this); }

void MemoryWindow::userCloses() {
  if (QueryUnload) QueryUnload();
  Unload();
}

std::unique_ptr<Window> MemoryToolkit::createWindow(const WindowDesign& design) {
  return std::make_unique<MemoryWindow>(*this, design);
}

void MemoryToolkit::MsgBox(TextView prompt) {
  if (showMessage) showMessage(prompt);
}

bool MemoryToolkit::setClipboardText(TextView text) {
  if (showClipboard) showClipboard(text);
  return true;
}

}  // namespace termvik
