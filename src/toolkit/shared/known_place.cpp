#include "toolkit/shared/known_place.h"

#include <utility>

namespace termvik {

void KnownPlace::set(const Place& outer, const PixelRect& pixels, bool isNormal) {
  now_ = {outer, pixels};
  if (isNormal) normal_ = now_;
}

void KnownPlace::take(const PixelRect& pixels, bool isNormal, int dpi) {
  if (isNormal && pixels == normal_.pixels) {
    now_ = normal_;
    return;
  }
  const PixelRect before = std::exchange(now_.pixels, pixels);
  const auto takeMeasure = [dpi](float& measure, int now, int then) {
    if (now != then) measure = toTwips(now, dpi);
  };
  takeMeasure(now_.outer.left, pixels.left, before.left);
  takeMeasure(now_.outer.top, pixels.top, before.top);
  takeMeasure(now_.outer.width, pixels.width(), before.width());
  takeMeasure(now_.outer.height, pixels.height(), before.height());
  if (isNormal) normal_ = now_;
}

}  // namespace termvik
