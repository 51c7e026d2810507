// Between the program's texts and measures and those of Windows.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <windows.h>

#include "common/wide_win.h"
#include "common/window_design.h"

namespace termvik {

// `text` as a text that ends in 0 can show it: with a blank for each U+0000, which would end it.
inline std::wstring shownText(TextView text) {
  std::wstring shown = wide(text);
  std::replace(shown.begin(), shown.end(), L'\0', L' ');
  return shown;
}

// A twip is 1/1440 inch; `dpi` is how many pixels the user's settings make an inch on a screen.
inline constexpr float kTwipsPerInch = 1440;

// Far outside any screen; Windows' own limit of a coordinate is a little above.
inline constexpr float kMostPixels = 30000;

inline int toPixels(float twips, int dpi) {
  const float pixels = twips * static_cast<float>(dpi) / kTwipsPerInch;
  return static_cast<int>(std::lround(std::clamp(pixels, -kMostPixels, kMostPixels)));
}

inline float toTwips(long pixels, int dpi) {
  return static_cast<float>(pixels) * kTwipsPerInch / static_cast<float>(dpi);
}

// Right and bottom edges are rounded for themselves, so that controls that share an edge in twips
// share it in pixels.
inline RECT toPixels(const Place& place, int dpi) {
  return {toPixels(place.left, dpi), toPixels(place.top, dpi),
          toPixels(place.left + place.width, dpi), toPixels(place.top + place.height, dpi)};
}

inline int widthOf(const RECT& rectangle) { return rectangle.right - rectangle.left; }
inline int heightOf(const RECT& rectangle) { return rectangle.bottom - rectangle.top; }

}  // namespace termvik
