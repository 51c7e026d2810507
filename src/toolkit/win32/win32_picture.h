// SPDX-License-Identifier: MIT
// The logo.
#pragma once

#include <memory>

#include "win32_controls.h"

namespace Gdiplus {
class Image;
}

namespace termvik {

class Win32Picture : public Win32Control<Control> {
 public:
  Win32Picture(Win32Window& window, const ControlDesign& design);
  ~Win32Picture() override;

  void draw(const DRAWITEMSTRUCT& item) override;

 private:
  std::unique_ptr<Gdiplus::Image> logo_;  // none where the program carries no logo
};

}  // namespace termvik
