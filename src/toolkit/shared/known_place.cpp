// SPDX-License-Identifier: MIT
#include "toolkit/shared/known_place.h"

namespace termvik {

void KnownPlace::set(const Place& outer, const PixelRect& pixels, bool isNormal) {
  now_ = {outer, pixels};
  if (isNormal) normal_ = now_;
}

void KnownPlace::take(const PixelRect& pixels, bool isNormal, int dpi) {
  const Known known = isNormal ? normal_ : now_;
  const auto measure = [dpi](int pixel, int knownPixel, float knownMeasure) {
    return pixel == knownPixel ? knownMeasure : toTwips(pixel, dpi);
  };
  now_ = {{measure(pixels.left, known.pixels.left, known.outer.left),
           measure(pixels.top, known.pixels.top, known.outer.top),
           measure(pixels.width(), known.pixels.width(), known.outer.width),
           measure(pixels.height(), known.pixels.height(), known.outer.height)},
          pixels};
}

}  // namespace termvik
