// SPDX-License-Identifier: MIT
// The memory toolkit's controls and window, with what a user can do to each.
#pragma once

#include <algorithm>

#include "memory_toolkit.h"

namespace termvik {

// A control that shows nothing.
template <class Base>
class Unseen : public Base {
 public:
  using Base::Base;

 protected:
  void showPlace() override {}
};

class MemoryEditBox : public Unseen<EditBox> {
 public:
  using Unseen::Unseen;

  Text text() const override { return text_; }
  std::int32_t SelStart() const override { return start_; }
  std::int32_t SelLength() const override { return length_; }
  void setSelStart(std::int32_t start) override;
  void setSelLength(std::int32_t length) override;

  void userReplacesSelection(TextView text);
  void userTypes(char16_t character);
  void userPresses(std::int16_t keyCode);
  void userClicksBox() { userClicks(); }

 private:
  std::int32_t size() const { return static_cast<std::int32_t>(text_.size()); }

  Text text_;
  std::int32_t start_ = 0;
  std::int32_t length_ = 0;
};

class MemoryTextBox : public Unseen<TextBox> {
 public:
  using Unseen::Unseen;

 protected:
  void showText() override {}
};

class MemoryListBox : public Unseen<ListBox> {
 public:
  using ListBox::userSelects;
  using Unseen::Unseen;

  void userPresses(std::int16_t keyCode);

 protected:
  void showRows() override {}
  void showRowText(std::int32_t) override {}
  void showSelection() override {}
};

class MemoryOptionButton : public Unseen<OptionButton> {
 public:
  using OptionButton::userChooses;
  using Unseen::Unseen;

 protected:
  void showValue() override {}
};

class MemoryCheckBox : public Unseen<CheckBox> {
 public:
  using Unseen::Unseen;

  void userClicksBox() { userSets(Value() == 0); }
};

class MemoryCommandButton : public Unseen<CommandButton> {
 public:
  using CommandButton::userPresses;
  using Unseen::Unseen;

 protected:
  void showEnabled() override {}
};

class MemoryWindow : public Window {
 public:
  MemoryWindow(MemoryToolkit& toolkit, const WindowDesign& design);
  ~MemoryWindow() override { MemoryWindow::Unload(); }

  Place outerPlace() const override { return place_; }
  void setOuterPlace(const Place& place) override;
  WindowState State() const override { return state_; }
  void maximise() override;
  ScreenSize Screen() const override { return toolkit_.screen(); }
  void Show() override;
  void ShowModal() override;
  void Unload() override;

  void userMinimises();
  void userRestores();
  void userCloses();

 protected:
  bool hasListener() const override { return false; }
  void speak(TextView, TextView) override {}

 private:
  void addControl(const ControlDesign& design);

  MemoryToolkit& toolkit_;
  Place place_;
  Place normalPlace_;
  WindowState state_ = WindowState::Normal;
  WindowState stateBehindIcon_ = WindowState::Normal;
};

}  // namespace termvik
