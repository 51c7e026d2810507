// SPDX-License-Identifier: MIT
// A box of one line in which the user writes.
#pragma once

#include "win32_controls.h"

namespace termvik {

class Win32EditBox : public Win32Control<EditBox> {
 public:
  Win32EditBox(Win32Window& window, const ControlDesign& design);

  Text text() const override;
  std::int32_t SelStart() const override;
  std::int32_t SelLength() const override;
  void setSelStart(std::int32_t start) override;
  void setSelLength(std::int32_t length) override;

  void reports(WORD code) override;

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  struct Selection {
    DWORD start = 0;
    DWORD end = 0;
  };
  Selection selection() const;
  bool takesCharacter(char16_t character);
  void deleteWord();

  bool keyKept_ = false;  // from the box, and so is the character that comes with the key
};

}  // namespace termvik
