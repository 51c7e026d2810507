// SPDX-License-Identifier: MIT
#include "toolkit/shared/captions.h"

#include <algorithm>

namespace termvik {

namespace {

constexpr int kStretchStep = 5;
constexpr int kLeastStretch = 75;

bool captionFits(const ControlDesign& design, const CaptionFont& font, const CaptionRuler& ruler) {
  const PixelSize room = ruler.roomFor(design);
  if (!design.multiLine && design.kind != ControlKind::TextBox) {
    return ruler.sizeOf(design, font, 0).width <= room.width;
  }
  const PixelSize needed = ruler.sizeOf(design, font, room.width);
  return needed.width <= room.width && needed.height <= room.height;
}

// Texts to be read shrink by themselves: a long one must not make all captions small.
std::ptrdiff_t captionsTooLong(const WindowDesign& design, const CaptionFont& font,
                               const CaptionRuler& ruler) {
  return std::count_if(design.controls.begin(), design.controls.end(), [&](const auto& control) {
    const bool sharesFont = control.font.points == 0 && control.kind != ControlKind::TextBox;
    return sharesFont && !captionFits(control, font, ruler);
  });
}

}  // namespace

CaptionFont captionFont(const WindowDesign& design, const CaptionFontChoice& choice,
                        const CaptionRuler& ruler) {
  CaptionFont font = choice.own;
  const auto fits = [&] { return captionsTooLong(design, font, ruler) <= choice.mayBeTooLong; };
  const auto shrinksToFit = [&] {
    font.pixels = std::max(choice.own.pixels, choice.least);
    while (font.pixels > choice.least && !fits()) --font.pixels;
    return fits();
  };
  if (shrinksToFit()) return font;
  for (const Text& family : choice.families) {
    font.family = family;
    if (shrinksToFit()) return font;
  }
  while (font.stretch > kLeastStretch && !fits()) font.stretch -= kStretchStep;
  return font;
}

CaptionFont fontThatFits(const ControlDesign& design, CaptionFont font, int least,
                         const CaptionRuler& ruler) {
  if (design.caption.empty()) return font;
  const auto fits = [&] { return captionFits(design, font, ruler); };
  while (font.pixels > least && !fits()) --font.pixels;
  while (font.stretch > kLeastStretch && !fits()) font.stretch -= kStretchStep;
  while (font.pixels > 1 && !fits()) --font.pixels;
  return font;
}

}  // namespace termvik
