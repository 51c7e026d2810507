// A text box of several lines that the user reads.
#pragma once

#include <vector>

#include "toolkit/win32/win32_controls.h"

namespace termvik {

class Win32ArticleBox : public Win32Control<TextBox> {
 public:
  Win32ArticleBox(Win32Window& window, const ControlDesign& design);

  Text text() const override { return text_; }
  void setText(TextView text) override;
  std::int32_t SelStart() const override { return 0; }
  std::int32_t SelLength() const override { return 0; }
  void setSelStart(std::int32_t) override {}
  void setSelLength(std::int32_t) override {}

 protected:
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::size_t textPositionOf(std::size_t shownPosition) const;
  void copySelection() const;

  Text text_;
  std::vector<std::size_t> added_;  // where what is shown has a character that the text lacks
};

}  // namespace termvik
