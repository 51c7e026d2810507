// SPDX-License-Identifier: MIT
// The controls of a window.
//
// A control keeps its state in the classes of this file, the same for every toolkit; a toolkit
// shows that state (the protected operations it overrides) and reports what the user did (the
// protected operations named user...).
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "common/collation/sorted_rows.h"
#include "common/system/text.h"
#include "common/toolkit/window_design.h"

namespace termvik {

class Control {
 public:
  explicit Control(const ControlDesign& design) : design_(design), place_(design.place) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const ControlDesign& design() const { return design_; }

  // The place in the container, in twips. A read gives what was last written, to the fraction.
  const Place& place() const { return place_; }
  float Left() const { return place_.left; }
  float Top() const { return place_.top; }
  float Width() const { return place_.width; }
  float Height() const { return place_.height; }
  void setLeft(float left) { moveTo({left, place_.top, place_.width, place_.height}); }
  void setTop(float top) { moveTo({place_.left, top, place_.width, place_.height}); }
  void setWidth(float width) { moveTo({place_.left, place_.top, width, place_.height}); }
  void setHeight(float height) { moveTo({place_.left, place_.top, place_.width, height}); }

 protected:
  virtual void showPlace() = 0;

 private:
  void moveTo(const Place& place) {
    place_ = place;
    showPlace();
  }

  ControlDesign design_;
  Place place_;
};

// A box of one line in which the user writes. The program reads the text and never writes it.
class EditBox : public Control {
 public:
  using Control::Control;

  // The whole text, every character as typed or pasted.
  virtual Text text() const = 0;

  // Start (0-based) and length of the selected part, in characters.
  virtual std::int32_t SelStart() const = 0;
  virtual std::int32_t SelLength() const = 0;
  virtual void setSelStart(std::int32_t start) = 0;    // the selected part becomes empty
  virtual void setSelLength(std::int32_t length) = 0;  // from SelStart on

  std::function<void()> Change;  // after each edit by the user, whatever its way: keys, clipboard,
                                 // undo, drag and drop, an input method
  std::function<void()> Click;   // the user clicked in the box; the caret has moved by then
  std::function<void(std::int16_t& keyCode)> KeyDown;     // first for every key; 0 keeps the key
                                                          // from the box
  std::function<void(std::int16_t& character)> KeyPress;  // then for a key that gives a character,
                                                          // Enter (13) too; 0 drops the character

 protected:
  void userEdits() const;
  void userClicks() const;
  bool userPressesKey(std::int16_t keyCode) const;    // false: the box must not see the key
  bool userGivesCharacter(char16_t character) const;  // false: the box must not see the character
};

// Key codes of KeyDown. Other keys come with codes of their own.
namespace keys {
inline constexpr std::int16_t kEnter = 13;
inline constexpr std::int16_t kPageUp = 33;
inline constexpr std::int16_t kPageDown = 34;
inline constexpr std::int16_t kUp = 38;
inline constexpr std::int16_t kDown = 40;
inline constexpr std::int16_t kOther = 255;
}  // namespace keys

// A box of several lines, wrapped, that the user reads and copies from and cannot change.
class TextBox : public Control {
 public:
  explicit TextBox(const ControlDesign& design) : Control(design), text_(design.caption) {}

  const Text& text() const { return text_; }

  // Replaces the text and shows it from its beginning. CR LF stands between lines.
  void setText(TextView text);

 protected:
  virtual void showText() = 0;

 private:
  Text text_;
};

// A sorted list. Rows count from 0; -1 stands for no row.
class ListBox : public Control {
 public:
  ListBox(const ControlDesign& design, const Collation& collation)
      : Control(design), rows_(collation) {}

  void Clear();  // no rows, no selection; raises nothing

  // A row with its number, at its place in the order. Raises nothing; a selected row stays selected
  // as it shifts. Rows come into order when they are next asked for or one of them is selected, so
  // that many are added fastest while none is.
  void AddItem(TextView text, std::int32_t itemData);
  std::int32_t NewIndex() const { return rows_.newest(); }  // the row added last, -1 for none
  std::int32_t ListCount() const { return rows_.count(); }
  TextView List(std::int32_t row) const { return rows_.text(row); }  // good until Clear
  void setList(std::int32_t row, TextView text);                     // the row keeps its place
  std::int32_t ItemData(std::int32_t row) const { return rows_.itemData(row); }
  std::int32_t ListIndex() const { return listIndex_; }  // the selected row

  // Selects a row that is there, scrolls it into view and raises Click, also when the row was
  // selected before.
  void setListIndex(std::int32_t row);

  const SortedRows& rows() const { return rows_; }

  // A row was selected: by assignment, by the mouse or by the keys of the list. The user's click on
  // the row that is selected raises nothing.
  std::function<void()> Click;

  // What a screen reader calls a row with that text; without it, the text itself.
  std::function<Text(TextView text)> RowName;
  Text rowName(std::int32_t row) const { return RowName ? RowName(List(row)) : Text(List(row)); }

 protected:
  virtual void showRows() = 0;                     // any rows may have come or gone
  virtual void showRowText(std::int32_t row) = 0;  // one text has changed
  virtual void showSelection() = 0;                // the selected row, in view
  void userSelects(std::int32_t row);              // nothing when it is selected

 private:
  SortedRows rows_;
  std::int32_t listIndex_ = -1;
};

class OptionButton;

// The option buttons that share a name. At most one is on.
class OptionGroup {
 public:
  bool Value(std::int32_t index) const;

  // True switches the option on and the others off, and raises Click with its index; nothing when
  // it was on. False switches it off and raises nothing.
  void setValue(std::int32_t index, bool on);

  std::function<void(std::int16_t index)> Click;  // an option has turned on

 private:
  friend class OptionButton;
  std::vector<OptionButton*> buttons_;  // by index
};

class OptionButton : public Control {
 public:
  OptionButton(const ControlDesign& design, OptionGroup& group);

  bool Value() const { return on_; }

 protected:
  virtual void showValue() = 0;
  void userChooses();  // nothing when it is on

 private:
  friend class OptionGroup;
  OptionGroup& group_;
  bool on_;
};

class CheckBox : public Control {
 public:
  explicit CheckBox(const ControlDesign& design) : Control(design), value_(design.on ? 1 : 0) {}

  std::int16_t Value() const { return value_; }  // 1 when ticked, otherwise 0

  std::function<void()> Click;  // the user has changed the box

 protected:
  void userSets(bool ticked);  // nothing when it has that value

 private:
  std::int16_t value_;
};

class CommandButton : public Control {
 public:
  explicit CommandButton(const ControlDesign& design) : Control(design), enabled_(design.enabled) {}

  bool Enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  std::function<void()> Click;  // pressed; never while the button is off

 protected:
  virtual void showEnabled() = 0;
  void userPresses();

 private:
  bool enabled_;
};

// A menu item. Its caption and its being on or off never change.
class MenuItem {
 public:
  explicit MenuItem(const MenuItemDesign& design) : design_(design) {}

  const MenuItemDesign& design() const { return design_; }

  void userChooses();  // nothing while the item is switched off

  std::function<void()> Click;

 private:
  MenuItemDesign design_;
};

}  // namespace termvik
