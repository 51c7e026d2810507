// SPDX-License-Identifier: MIT
// The real main window, for tests of what a person finds in it.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "dialogs/frm_about_design.h"
#include "lookup/frm_glossary_design.h"
#include "toolkit/win32/win32_hands.h"
#include "win32_text.h"
#include "win32_window.h"

// After the header that it needs.
#include <commctrl.h>

namespace termvik {

class Win32MainWindow : public testing::Test {
 protected:
  Win32MainWindow() {
    window->Show();
    hands->settle();
  }

  HWND handleOf(TextView name) const { return win32Widget(window->control(name)).handle(); }
  HWND hwnd() const { return dynamic_cast<Win32Window&>(*window).hwnd(); }

  std::string focused() const {
    for (const auto& control : window->controls()) {
      if (win32Widget(*control).handle() != GetFocus()) continue;
      const std::int32_t index = control->design().index;
      const std::string name = toUtf8(control->design().name);
      return index < 0 ? name : name + std::to_string(index);
    }
    return "none";
  }

  // Presses a key wherever the focus is.
  void press(int key) const {
    PostMessageW(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    hands->settle();
  }

  Text copied(HWND box) const {
    Text text;
    hands->seesClipboard = [&](TextView seen) { text = seen; };
    SendMessageW(box, WM_CHAR, 1, 1);  // Ctrl+A
    SendMessageW(box, WM_CHAR, 3, 1);  // Ctrl+C
    return text;
  }

  const Collation collation{"sv_SE"};
  const std::unique_ptr<Hands> hands = makeWin32Hands(collation);
  const std::unique_ptr<Window> window = hands->toolkit().createWindow(frmGlossaryDesign());
  ListBox& list = window->listBox(u"lstWords");
};

}  // namespace termvik
