// SPDX-License-Identifier: MIT
#include "toolkit/memory/memory_hands.h"

#include <algorithm>

#include "common/system/app.h"
#include "memory_controls.h"

namespace termvik {

namespace {

class MemoryHands : public Hands {
 public:
  MemoryHands(const Collation& collation, ScreenSize screen) : toolkit_(collation, screen) {
    toolkit_.showMessage = [this](TextView prompt) {
      if (seesMessage) seesMessage(prompt, kProgramName);
    };
    toolkit_.showClipboard = [this](TextView text) {
      if (seesClipboard) seesClipboard(text);
    };
    toolkit_.showModal = [this](Window& box) {
      if (seesModalBox) seesModalBox(box);
    };
  }

  Toolkit& toolkit() override { return toolkit_; }

  void replaceText(EditBox& box, TextView text) override {
    if (box.text() == text) return;
    box.setSelStart(0);
    box.setSelLength(static_cast<std::int32_t>(box.text().size()));
    as<MemoryEditBox>(box).userReplacesSelection(text);
  }

  void type(EditBox& box, char16_t character) override {
    as<MemoryEditBox>(box).userTypes(character);
  }

  void goToEnd(EditBox& box) override {
    box.setSelStart(static_cast<std::int32_t>(box.text().size()));
  }

  void press(Control& control, std::int16_t keyCode) override {
    if (auto* list = dynamic_cast<MemoryListBox*>(&control)) {
      list->userPresses(keyCode);
    } else {
      as<MemoryEditBox>(control).userPresses(keyCode);
    }
  }

  void click(Control& control) override {
    if (auto* box = dynamic_cast<MemoryEditBox*>(&control)) box->userClicksBox();
    if (auto* option = dynamic_cast<MemoryOptionButton*>(&control)) option->userChooses();
    if (auto* check = dynamic_cast<MemoryCheckBox*>(&control)) check->userClicksBox();
    if (auto* button = dynamic_cast<MemoryCommandButton*>(&control)) button->userPresses();
    if (control.design().kind == ControlKind::Line) clickCorner(windowOf(control));
  }

  void clickCorner(Window& window) override {
    if (window.Click) window.Click();
  }

  void clickRow(ListBox& list, std::int32_t row) override {
    as<MemoryListBox>(list).userSelects(row);
  }

  void choose(Window&, MenuItem& item) override { item.userChooses(); }

  void place(Window& window, const Place& place) override { window.setOuterPlace(place); }
  void maximise(Window& window) override { window.maximise(); }
  void minimise(Window& window) override { as<MemoryWindow>(window).userMinimises(); }
  void restore(Window& window) override { as<MemoryWindow>(window).userRestores(); }
  void close(Window& window) override { as<MemoryWindow>(window).userCloses(); }

 private:
  template <class Kind, class Base>
  static Kind& as(Base& object) {
    return dynamic_cast<Kind&>(object);
  }

  Window& windowOf(const Control& control) const {
    const auto holds = [&control](const Window* window) {
      const auto& all = window->controls();
      return std::any_of(all.begin(), all.end(),
                         [&](const auto& one) { return &*one == &control; });
    };
    const std::vector<Window*> open = toolkit_.Forms();
    return **std::find_if(open.begin(), open.end(), holds);
  }

  MemoryToolkit toolkit_;
};

}  // namespace

std::unique_ptr<Hands> makeMemoryHands(const Collation& collation, ScreenSize screen) {
  return std::make_unique<MemoryHands>(collation, screen);
}

}  // namespace termvik
