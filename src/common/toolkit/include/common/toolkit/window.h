// SPDX-License-Identifier: MIT
// A window of the program.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "common/toolkit/control.h"
#include "common/toolkit/window_design.h"

namespace termvik {

enum class WindowState : std::int16_t { Normal = 0, Minimised = 1, Maximised = 2 };

struct ScreenSize {
  float Width = 0;  // twips
  float Height = 0;
};

// A window. It is open from its creation to its Unload and seen from Show on.
class Window {
 public:
  explicit Window(WindowDesign design) : design_(std::move(design)) {}
  virtual ~Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  const WindowDesign& design() const { return design_; }
  TextView Name() const { return design_.name; }

  // The outer rectangle on the screen, in twips: title bar, menu bar and frame included. A write
  // takes effect at once, also before Show, and a read gives the values in force: what was
  // written, to the fraction, until the user or the system moves the window. A change of the
  // width or the height raises Resize before it returns.
  virtual Place outerPlace() const = 0;
  virtual void setOuterPlace(const Place& place) = 0;
  float Left() const { return outerPlace().left; }
  float Top() const { return outerPlace().top; }
  float Width() const { return outerPlace().width; }
  float Height() const { return outerPlace().height; }
  void setLeft(float left);
  void setTop(float top);
  void setWidth(float width);
  void setHeight(float height);

  virtual WindowState State() const = 0;
  virtual void maximise() = 0;  // raises Resize if the size changes

  // The screen that the window is on.
  virtual ScreenSize Screen() const = 0;

  virtual void Show() = 0;

  // Shows the window and returns when it has been unloaded; no other window takes input meanwhile.
  virtual void ShowModal() = 0;

  // Closes the window without asking. It is then no longer among the open windows.
  virtual void Unload() = 0;

  // Says `utterance` to a screen reader, in place of what it is saying. Nothing changes on the
  // screen, and the focus stays where it is. Of utterances that follow each other too fast to be
  // heard only the newest need be said. Where isHeard is false there is nobody to listen, and the
  // words need not be made. `news` is the part that a reader does not say by itself when the state
  // of the control with the focus changes: readers that cannot be cut off are given no more.
  void say(TextView utterance) { say(utterance, utterance); }
  void say(TextView utterance, TextView news);
  bool isHeard() const { return Said || hasListener(); }

  std::function<void(TextView utterance)> Said;  // what is said, for those who write it down

  std::function<void()> Resize;       // the size has changed, or the window has its first size
  std::function<void()> QueryUnload;  // the user or the system closes the window; Unload follows
  std::function<void()> Click;        // the user clicked where no control is
  std::function<void()> Deactivate;   // another window of the desktop has become the active one

  // The controls by name; asking for one that the design lacks is a fault of the program.
  EditBox& editBox(TextView name) const { return control<EditBox>(name); }
  TextBox& textBox(TextView name) const { return control<TextBox>(name); }
  ListBox& listBox(TextView name) const { return control<ListBox>(name); }
  CheckBox& checkBox(TextView name) const { return control<CheckBox>(name); }
  CommandButton& commandButton(TextView name) const { return control<CommandButton>(name); }
  Control& control(TextView name) const { return control<Control>(name); }
  OptionGroup& optionGroup(TextView name) const;
  MenuItem& menuItem(TextView name) const;

  // In tab order.
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

 protected:
  virtual bool hasListener() const = 0;
  virtual void speak(TextView utterance, TextView news) = 0;  // only while there is a listener

  void addControl(std::unique_ptr<Control> control) { controls_.push_back(std::move(control)); }
  OptionGroup& groupOf(const ControlDesign& design);  // made when it is first asked for
  MenuItem& addMenuItem(const MenuItemDesign& design);

 private:
  struct NamedGroup {
    TextView name;
    OptionGroup group;
  };

  template <class Kind>
  Kind& control(TextView name) const {
    for (const auto& candidate : controls_) {
      if (candidate->design().name != name) continue;
      if (auto* found = dynamic_cast<Kind*>(candidate.get())) return *found;
    }
    failForName(name);
  }
  void setMeasure(float Place::*measure, float value);
  [[noreturn]] static void failForName(TextView name);

  WindowDesign design_;
  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<std::unique_ptr<NamedGroup>> groups_;
  std::vector<std::unique_ptr<MenuItem>> menu_;
};

}  // namespace termvik
