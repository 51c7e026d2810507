// The state of controls, shared by all toolkits.
#include "common/toolkit.h"

#include <cstdio>
#include <cstdlib>

namespace termvik {

namespace {

template <class... Arguments>
void raise(const std::function<void(Arguments...)>& event, Arguments... arguments) {
  if (event) event(arguments...);
}

}  // namespace

void TextBox::userEdits() const { raise(Change); }

void TextBox::userClicks() const { raise(Click); }

bool TextBox::userPressesKey(std::int16_t keyCode) const {
  if (KeyDown) KeyDown(keyCode);
  return keyCode != 0;
}

bool TextBox::userGivesCharacter(char16_t character) const {
  auto code = static_cast<std::int16_t>(character);
  if (KeyPress) KeyPress(code);
  return code != 0;
}

void ListBox::Clear() {
  rows_.clear();
  newIndex_ = -1;
  listIndex_ = -1;
  showRows();
}

void ListBox::AddItem(TextView text) {
  newIndex_ = rows_.add(text);
  if (listIndex_ >= newIndex_) ++listIndex_;
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

void Window::setLeft(float left) {
  Place place = outerPlace();
  place.left = left;
  setOuterPlace(place);
}

void Window::setTop(float top) {
  Place place = outerPlace();
  place.top = top;
  setOuterPlace(place);
}

void Window::setWidth(float width) {
  Place place = outerPlace();
  place.width = width;
  setOuterPlace(place);
}

void Window::setHeight(float height) {
  Place place = outerPlace();
  place.height = height;
  setOuterPlace(place);
}

OptionGroup& Window::optionGroup(TextView name) const {
  for (const auto& candidate : groups_) {
    if (candidate->name == name) return candidate->group;
  }
  failForName(name);
}

OptionGroup& Window::groupOf(const ControlDesign& design) {
  for (const auto& candidate : groups_) {
    if (candidate->name == design.name) return candidate->group;
  }
  groups_.push_back(std::make_unique<NamedGroup>(NamedGroup{design.name, {}}));
  return groups_.back()->group;
}

MenuItem& Window::menuItem(TextView name) const {
  for (const auto& candidate : menu_) {
    if (candidate->design().name == name) return *candidate;
  }
  failForName(name);
}

MenuItem& Window::addMenuItem(const MenuItemDesign& design) {
  menu_.push_back(std::make_unique<MenuItem>(design));
  return *menu_.back();
}

void Window::failForName(TextView name) {
  std::fprintf(stderr, "termvik: the window has no member %s of that kind\n", toUtf8(name).c_str());
  std::abort();
}

}  // namespace termvik
