// SPDX-License-Identifier: MIT
#include "common/toolkit/window.h"

#include <cstdio>
#include <cstdlib>

namespace termvik {

void Window::setLeft(float left) { setMeasure(&Place::left, left); }
void Window::setTop(float top) { setMeasure(&Place::top, top); }
void Window::setWidth(float width) { setMeasure(&Place::width, width); }
void Window::setHeight(float height) { setMeasure(&Place::height, height); }

void Window::setMeasure(float Place::*measure, float value) {
  Place place = outerPlace();
  place.*measure = value;
  setOuterPlace(place);
}

void Window::say(TextView utterance, TextView news) {
  if (Said) Said(utterance);
  if (hasListener()) speak(utterance, news);
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
