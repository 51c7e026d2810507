// SPDX-License-Identifier: MIT
// What a person does to a window and sees of it: the hands of the tests and of termvik-replay. One
// pair for each toolkit, so that the same acts can be done on all of them.
#pragma once

#include <cstdint>
#include <functional>

#include "common/toolkit/toolkit.h"

namespace termvik {

class Hands {
 public:
  Hands() = default;
  virtual ~Hands() = default;
  Hands(const Hands&) = delete;
  Hands& operator=(const Hands&) = delete;

  virtual Toolkit& toolkit() = 0;

  // Replaces the whole text of a box in one edit; nothing when it has that text.
  virtual void replaceText(EditBox& box, TextView text) = 0;

  // Types one character at the place of the caret.
  virtual void type(EditBox& box, char16_t character) = 0;

  // Puts the caret after the last character.
  virtual void goToEnd(EditBox& box) = 0;

  // Presses a key of `keys` in a text box or in a list.
  virtual void press(Control& control, std::int16_t keyCode) = 0;

  // Clicks the middle of a control.
  virtual void click(Control& control) = 0;

  // Clicks the upper left corner of the client area, where no design has a control.
  virtual void clickCorner(Window& window) = 0;

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

}  // namespace termvik
