// SPDX-License-Identifier: MIT
// Where a window stands, as the program knows it: the outer rectangle to the fraction of a twip
// that the program wrote, while the screen has whole pixels only.
#pragma once

#include "toolkit/shared/pixels.h"

namespace termvik {

class KnownPlace {
 public:
  const Place& outer() const { return now_.outer; }
  const PixelRect& pixels() const { return now_.pixels; }

  // The program has written `outer`, and the window stands at `pixels` for it.
  void set(const Place& outer, const PixelRect& pixels, bool isNormal);

  // The user or the system has brought the window to `pixels`. A measure that is as the program
  // wrote it keeps its fraction, also when the window comes back from another state, which a window
  // system may do in several steps.
  void take(const PixelRect& pixels, bool isNormal, int dpi);

 private:
  struct Known {
    Place outer;
    PixelRect pixels;
  };
  Known now_;
  Known normal_;  // the last one that the program wrote in the normal state
};

}  // namespace termvik
