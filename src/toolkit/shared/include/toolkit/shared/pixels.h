// SPDX-License-Identifier: MIT
// Between the twips of the program and the pixels of a screen.
#pragma once

#include "common/toolkit/window_design.h"

namespace termvik {

// `dpi` is how many pixels the user's settings make an inch on a screen.
inline constexpr float kTwipsPerInch = 1440;

// Far outside any screen; the window systems' own limit of a coordinate is a little above.
inline constexpr float kMostPixels = 30000;

struct PixelSize {
  int width = 0;
  int height = 0;

  bool operator==(const PixelSize&) const = default;
};

struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  int width() const { return right - left; }
  int height() const { return bottom - top; }
  PixelSize size() const { return {width(), height()}; }
  bool operator==(const PixelRect&) const = default;
};

int toPixels(float twips, int dpi);
float toTwips(int pixels, int dpi);

// Right and bottom edges are rounded for themselves, so that controls that share an edge in twips
// share it in pixels.
PixelRect toPixels(const Place& place, int dpi);
Place toTwips(const PixelRect& pixels, int dpi);

}  // namespace termvik
