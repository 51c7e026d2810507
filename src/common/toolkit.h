// The one door outwards: what the program asks of a window toolkit, and what it may rely on.
//
// The members bear the field's names for them. A control keeps its state in the classes of this
// file, the same for every toolkit; a toolkit shows that state (the protected operations it
// overrides) and reports what the user did (the protected operations named user...).
//
// Events are the `std::function` members. An event is raised before the call or the user's act that
// causes it is over; an event with no handler does nothing. There is one thread.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "common/sorted_rows.h"
#include "common/text.h"
#include "common/window_design.h"

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

// A text box. The program reads what the user has written and writes only boxes that are locked.
class TextBox : public Control {
 public:
  using Control::Control;

  // The whole text, every character as typed, pasted or assigned.
  virtual Text text() const = 0;

  // Replaces the text and shows it from its beginning. Raises no event.
  virtual void setText(TextView text) = 0;

  // Start (0-based) and length of the selected part of a box of one line, in characters.
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

// A sorted list. Rows count from 0; -1 stands for no row.
class ListBox : public Control {
 public:
  ListBox(const ControlDesign& design, const Collation& collation)
      : Control(design), rows_(collation) {}

  void Clear();                 // no rows, no selection; raises nothing
  void AddItem(TextView text);  // at its place in the order; raises nothing; a selected row stays
                                // selected as it shifts
  std::int32_t NewIndex() const { return newIndex_; }  // the row added last
  std::int32_t ListCount() const { return rows_.count(); }
  TextView List(std::int32_t row) const { return rows_.text(row); }  // good until Clear
  void setList(std::int32_t row, TextView text);                     // the row keeps its place
  std::int32_t ItemData(std::int32_t row) const { return rows_.itemData(row); }
  void setItemData(std::int32_t row, std::int32_t data) { rows_.setItemData(row, data); }
  std::int32_t ListIndex() const { return listIndex_; }  // the selected row

  // Selects a row that is there, scrolls it into view and raises Click, also when the row was
  // selected before.
  void setListIndex(std::int32_t row);

  const SortedRows& rows() const { return rows_; }

  // A row was selected: by assignment, by the mouse or by the keys of the list. The user's click on
  // the row that is selected raises nothing.
  std::function<void()> Click;

 protected:
  virtual void showRows() = 0;                     // any rows may have come or gone
  virtual void showRowText(std::int32_t row) = 0;  // one text has changed
  virtual void showSelection() = 0;                // the selected row, in view
  void userSelects(std::int32_t row);              // nothing when it is selected

 private:
  SortedRows rows_;
  std::int32_t newIndex_ = -1;
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

  std::function<void()> Resize;       // the size has changed, or the window has its first size
  std::function<void()> QueryUnload;  // the user or the system closes the window; Unload follows
  std::function<void()> Click;        // the user clicked where no control is
  std::function<void()> Deactivate;   // another window of the desktop has become the active one

  // The controls by name; asking for one that the design lacks is a fault of the program.
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
  [[noreturn]] static void failForName(TextView name);

  WindowDesign design_;
  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<std::unique_ptr<NamedGroup>> groups_;
  std::vector<std::unique_ptr<MenuItem>> menu_;
};

class Toolkit {
 public:
  Toolkit() = default;
  virtual ~Toolkit() = default;
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;

  // A window built from `design`, open and not yet seen, with its client area at the size of the
  // design, at a place that the system chooses. The caller owns it.
  virtual std::unique_ptr<Window> createWindow(const WindowDesign& design) = 0;

  // The open windows in the order of their creation.
  virtual std::vector<Window*> Forms() const = 0;

  // Shows `prompt` in a modal box with an OK button and the program's name as its title; returns
  // when the user has answered.
  virtual void MsgBox(TextView prompt) = 0;

  // Puts plain text onto the system clipboard.
  virtual void setClipboardText(TextView text) = 0;
};

}  // namespace termvik
