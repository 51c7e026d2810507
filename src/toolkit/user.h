// What a person does to a window and sees of it: the hands of the tests and of termvik-replay. One
// for each toolkit, so that the same acts can be done on all of them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "common/toolkit.h"

namespace termvik {

class User {
 public:
  User() = default;
  virtual ~User() = default;
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  virtual Toolkit& toolkit() = 0;

  // Replaces the whole text of a box in one edit; nothing when it has that text.
  virtual void replaceText(TextBox& box, TextView text) = 0;

  // Types one character at the place of the caret.
  virtual void type(TextBox& box, char16_t character) = 0;

  // Puts the caret behind the last character.
  virtual void goToEnd(TextBox& box) = 0;

  // Presses a key of toolkit.h's `keys` in a text box or in a list.
  virtual void press(Control& control, std::int16_t keyCode) = 0;

  // Clicks the middle of a control.
  virtual void click(Control& control) = 0;
  virtual void clickRow(ListBox& list, std::int32_t row) = 0;
  virtual void choose(Window& window, MenuItem& item) = 0;

  virtual void place(Window& window, const Place& place) = 0;
  virtual void maximise(Window& window) = 0;
  virtual void minimise(Window& window) = 0;
  virtual void restore(Window& window) = 0;
  virtual void close(Window& window) = 0;

  // Waits until the window system has done what the program has asked it to do.
  virtual void settle() {}

  // What the program shows; the user answers each message and each modal box with OK afterwards.
  std::function<void(TextView prompt, TextView title)> seesMessage;
  std::function<void(Window& box)> seesModalBox;
  std::function<void(TextView text)> seesClipboard;
};

// A user at a screen of no toolkit but memory.
std::unique_ptr<User> makeMemoryUser(const Collation& collation, ScreenSize screen);

}  // namespace termvik
