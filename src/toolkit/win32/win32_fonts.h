// SPDX-License-Identifier: MIT
// Fonts for the controls, small enough that no caption is clipped in the place it was designed for.
#pragma once

#include <memory>
#include <type_traits>
#include <vector>
#include <windows.h>

#include "common/toolkit/window_design.h"

namespace termvik {

struct FontDeleter {
  void operator()(HFONT font) const { DeleteObject(font); }
};
using Font = std::unique_ptr<std::remove_pointer_t<HFONT>, FontDeleter>;

// The fonts of one window at one resolution.
class Win32Fonts {
 public:
  Win32Fonts(const WindowDesign& design, int dpi);

  bool areStale() const;  // the user has chosen another font since

  // The font for a control: the one that its design names, or one of the same proportions where it
  // is not installed; otherwise the user's own, in the largest size in which the captions of the
  // window fit. Good as long as this object.
  HFONT fontFor(const ControlDesign& design);

 private:
  int dpi_;
  LOGFONTW own_;
  LOGFONTW captions_;
  std::vector<Font> made_;
};

}  // namespace termvik
