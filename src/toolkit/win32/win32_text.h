// SPDX-License-Identifier: MIT
// Between the program's texts and measures and those of Windows.
#pragma once

#include <algorithm>
#include <string>
#include <windows.h>

#include "common/system/wide_win.h"
#include "toolkit/shared/pixels.h"

namespace termvik {

// `text` as a text that ends in 0 can show it: with a blank for each U+0000, which would end it.
inline std::wstring shownText(TextView text) {
  std::wstring shown = wide(text);
  std::replace(shown.begin(), shown.end(), L'\0', L' ');
  return shown;
}

inline RECT toRect(const PixelRect& place) {
  return {place.left, place.top, place.right, place.bottom};
}

inline PixelRect fromRect(const RECT& place) {
  return {place.left, place.top, place.right, place.bottom};
}

inline int widthOf(const RECT& rectangle) { return rectangle.right - rectangle.left; }
inline int heightOf(const RECT& rectangle) { return rectangle.bottom - rectangle.top; }

}  // namespace termvik
