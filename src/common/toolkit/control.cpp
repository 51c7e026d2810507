// SPDX-License-Identifier: MIT
// The state of controls, shared by all toolkits.
#include "common/toolkit/control.h"

namespace termvik {

namespace {

template <class... Arguments>
void raise(const std::function<void(Arguments...)>& event, Arguments... arguments) {
  if (event) event(arguments...);
}

}  // namespace

void EditBox::userEdits() const { raise(Change); }

void EditBox::userClicks() const { raise(Click); }

bool EditBox::userPressesKey(std::int16_t keyCode) const {
  if (KeyDown) KeyDown(keyCode);
  return keyCode != 0;
}

bool EditBox::userGivesCharacter(char16_t character) const {
  auto code = static_cast<std::int16_t>(character);
  if (KeyPress) KeyPress(code);
  return code != 0;
}

void TextBox::setText(TextView text) {
  text_ = text;
  showText();
}

void ListBox::Clear() {
  rows_.clear();
  listIndex_ = -1;
  showRows();
}

void ListBox::AddItem(TextView text, std::int32_t itemData) {
  rows_.add(text, itemData);
  if (listIndex_ >= 0 && rows_.newest() <= listIndex_) ++listIndex_;
  showRows();
}

void ListBox::setList(std::int32_t row, TextView text) {
  rows_.setText(row, text);
  showRowText(row);
}

void ListBox::setListIndex(std::int32_t row) {
  listIndex_ = row;
  showSelection();
  raise(Click);
}

void ListBox::userSelects(std::int32_t row) {
  if (row == listIndex_) return;
  listIndex_ = row;
  raise(Click);
}

OptionButton::OptionButton(const ControlDesign& design, OptionGroup& group)
    : Control(design), group_(group), on_(design.on) {
  const auto index = static_cast<std::size_t>(design.index);
  if (group.buttons_.size() <= index) group.buttons_.resize(index + 1);
  group.buttons_[index] = this;
}

void OptionButton::userChooses() { group_.setValue(design().index, true); }

bool OptionGroup::Value(std::int32_t index) const {
  return buttons_.at(static_cast<std::size_t>(index))->on_;
}

void OptionGroup::setValue(std::int32_t index, bool on) {
  if (Value(index) == on) return;
  for (OptionButton* button : buttons_) {
    button->on_ = on && button->design().index == index;
  }
  for (OptionButton* button : buttons_) button->showValue();
  if (on) raise(Click, static_cast<std::int16_t>(index));
}

void CheckBox::userSets(bool ticked) {
  if ((value_ == 1) == ticked) return;
  value_ = ticked ? 1 : 0;
  raise(Click);
}

void CommandButton::setEnabled(bool enabled) {
  enabled_ = enabled;
  showEnabled();
}

void CommandButton::userPresses() {
  if (enabled_) raise(Click);
}

void MenuItem::userChooses() {
  if (design_.enabled) raise(Click);
}

}  // namespace termvik
