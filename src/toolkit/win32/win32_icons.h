// SPDX-License-Identifier: MIT
// The program's icon on a window, in the sizes that go with the window's resolution.
#pragma once

#include <memory>
#include <type_traits>
#include <windows.h>

namespace termvik {

class Win32Icons {
 public:
  // Shows the icons on the window; they are good as long as this object.
  Win32Icons(HWND window, int dpi);

 private:
  struct Deleter {
    void operator()(HICON icon) const { DestroyIcon(icon); }
  };
  using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, Deleter>;

  static Icon load(int widthMetric, int heightMetric, int dpi);

  Icon large_;
  Icon small_;
};

}  // namespace termvik
