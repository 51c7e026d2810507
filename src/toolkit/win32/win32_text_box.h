// SPDX-License-Identifier: MIT
// A box of several lines that the user reads.
#pragma once

#include <vector>

#include "win32_controls.h"

namespace termvik {

class Win32TextBox : public Win32Control<TextBox> {
 public:
  Win32TextBox(Win32Window& window, const ControlDesign& design);

 protected:
  void showText() override;
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::size_t textPositionOf(std::size_t shownPosition) const;
  void copySelection() const;

  std::vector<std::size_t> added_;  // where what is shown has a character that the text lacks
};

}  // namespace termvik
