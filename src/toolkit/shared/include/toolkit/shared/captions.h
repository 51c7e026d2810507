// SPDX-License-Identifier: MIT
// Fonts small enough that no caption is clipped in the place it was designed for.
#pragma once

#include <vector>

#include "toolkit/shared/pixels.h"

namespace termvik {

// What may change of a font for a caption's sake.
struct CaptionFont {
  Text family;        // empty for the family that the toolkit's ruler starts from
  int pixels = 0;     // the size of the letters
  int stretch = 100;  // the width of the letters, in percent
};

// Measures captions as a toolkit shows them.
class CaptionRuler {
 public:
  CaptionRuler() = default;
  virtual ~CaptionRuler() = default;
  CaptionRuler(const CaptionRuler&) = delete;
  CaptionRuler& operator=(const CaptionRuler&) = delete;

  // What a control leaves for its caption.
  virtual PixelSize roomFor(const ControlDesign& design) const = 0;

  // How large its caption is: on one line, or wrapped at `width` when that is not 0.
  virtual PixelSize sizeOf(const ControlDesign& design, const CaptionFont& font,
                           int width) const = 0;
};

// What a toolkit has to choose from.
struct CaptionFontChoice {
  CaptionFont own{};             // the user's
  std::vector<Text> families{};  // narrower ones
  int least = 0;                 // the smallest size that is good to read, in pixels
  int mayBeTooLong = 0;          // how many captions may, since each shrinks by itself afterwards
};

// The font for all controls whose design names none: the user's own, otherwise the first of the
// narrower families, in the largest size in which the captions of the window fit. Where there is
// none, its letters are narrowed rather than made too small to read.
CaptionFont captionFont(const WindowDesign& design, const CaptionFontChoice& choice,
                        const CaptionRuler& ruler);

// The font for one control: `font` in the largest size down to `least` in which the control's
// caption fits; otherwise with narrower letters, and at last smaller than is good to read.
CaptionFont fontThatFits(const ControlDesign& design, CaptionFont font, int least,
                         const CaptionRuler& ruler);

}  // namespace termvik
