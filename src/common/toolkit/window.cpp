// SPDX-License-Identifier: MIT
#include "common/toolkit/window.h"

#include <cstdio>
#include <cstdlib>

namespace termvik {

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

void Window::say(TextView utterance) {
  if (Said) Said(utterance);
  if (hasListener()) speak(utterance);
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
