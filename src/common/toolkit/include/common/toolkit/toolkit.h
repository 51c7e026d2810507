// SPDX-License-Identifier: MIT
// The contract with a window toolkit: what the program asks of it, and what it may rely on.
//
// The members bear the field's names for them. Events are the `std::function` members. An event is
// raised before the call or the user's act that causes it is over; an event with no handler does
// nothing. All of it is for the main thread.
#pragma once

#include <memory>
#include <vector>

#include "common/toolkit/window.h"

namespace termvik {

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

  // Puts plain text onto the system clipboard. False when another program keeps it from that.
  [[nodiscard]] virtual bool setClipboardText(TextView text) = 0;
};

}  // namespace termvik
