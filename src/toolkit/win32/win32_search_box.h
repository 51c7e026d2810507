// A text box of one line.
#pragma once

#include "toolkit/win32/win32_controls.h"

namespace termvik {

class Win32SearchBox : public Win32Control<TextBox> {
 public:
  Win32SearchBox(Win32Window& window, const ControlDesign& design);

  Text text() const override;
  void setText(TextView text) override;
  std::int32_t SelStart() const override;
  std::int32_t SelLength() const override;
  void setSelStart(std::int32_t start) override;
  void setSelLength(std::int32_t length) override;

  void reports(WORD code) override;

 protected:
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  struct Selection {
    DWORD start = 0;
    DWORD end = 0;
  };
  Selection selection() const;
  bool takesCharacter(char16_t character);

  bool assigning_ = false;  // the program writes the text, not the user
  bool keyKept_ = false;    // from the box, and so is the character that comes with the key
};

}  // namespace termvik
