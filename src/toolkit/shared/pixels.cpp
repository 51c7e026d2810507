// SPDX-License-Identifier: MIT
#include "toolkit/shared/pixels.h"

#include <algorithm>
#include <cmath>

namespace termvik {

int toPixels(float twips, int dpi) {
  const float pixels = twips * static_cast<float>(dpi) / kTwipsPerInch;
  return static_cast<int>(std::lround(std::clamp(pixels, -kMostPixels, kMostPixels)));
}

float toTwips(int pixels, int dpi) {
  return static_cast<float>(pixels) * kTwipsPerInch / static_cast<float>(dpi);
}

PixelRect toPixels(const Place& place, int dpi) {
  return {toPixels(place.left, dpi), toPixels(place.top, dpi),
          toPixels(place.left + place.width, dpi), toPixels(place.top + place.height, dpi)};
}

Place toTwips(const PixelRect& pixels, int dpi) {
  return {toTwips(pixels.left, dpi), toTwips(pixels.top, dpi), toTwips(pixels.width(), dpi),
          toTwips(pixels.height(), dpi)};
}

}  // namespace termvik
