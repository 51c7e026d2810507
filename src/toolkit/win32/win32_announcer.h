// SPDX-License-Identifier: MIT
// What a window says to a screen reader without a change of its focus.
#pragma once

#include <string>
#include <windows.h>

#include "common/system/text.h"

namespace termvik {

class Win32Announcer {
 public:
  explicit Win32Announcer(HWND window);

  // Whether a program may be there that tells its user what other programs say.
  static bool hasListener();

  // The newest utterance, once no other has come for a moment.
  void say(TextView utterance);

 private:
  static void CALLBACK restEnds(HWND region, UINT message, UINT_PTR timer, DWORD time);
  void announce() const;

  HWND window_;
  HWND region_;  // goes with the window
  std::wstring utterance_;
};

}  // namespace termvik
