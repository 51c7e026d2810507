// SPDX-License-Identifier: MIT
#include "win32_fonts.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>

#include "toolkit/shared/captions.h"
#include "win32_screen.h"
#include "win32_text.h"

namespace termvik {

namespace {

constexpr float kPointsPerInch = 72;
constexpr int kLeastPixels =
    11;  // at the usual resolution: what the captions' places were drawn for

constexpr int kBoxBorders = 6;  // at the usual resolution: above and below the text of a box

// Narrower than the message fonts of today's Windows, in the order of preference.
const std::vector<Text> kNarrowFamilies = {u"Tahoma", u"Microsoft Sans Serif", u"Arial"};

// The family of that name that scales: what bears the name itself is a set of bitmaps of a few
// sizes and one code page.
TextView scalableFamily(TextView family) {
  return family == u"MS Sans Serif" ? u"Microsoft Sans Serif" : family;
}

void setFamily(LOGFONTW& font, TextView family) {
  const std::wstring name = wide(family.substr(0, LF_FACESIZE - 1));
  std::fill(std::begin(font.lfFaceName), std::end(font.lfFaceName), L'\0');
  std::copy(name.begin(), name.end(), std::begin(font.lfFaceName));
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfPitchAndFamily = VARIABLE_PITCH | FF_SWISS;
}

// The height of the letters of a font, without the leading.
int pixelsOf(const LOGFONTW& font) { return std::abs(static_cast<int>(font.lfHeight)); }
void setPixels(LOGFONTW& font, int pixels) { font.lfHeight = -pixels; }

LOGFONTW designedFont(const FontDesign& design, int dpi) {
  LOGFONTW font{};
  setFamily(font, scalableFamily(design.family));
  const float pixels = design.points * static_cast<float>(dpi) / kPointsPerInch;
  setPixels(font, static_cast<int>(std::lround(pixels)));
  font.lfWeight = design.bold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = design.italic ? 1 : 0;
  return font;
}

// What a control needs beside its caption, in pixels at the usual resolution. Letters can reach
// beyond the width that they are said to have.
int roomBesideCaption(ControlKind kind) {
  switch (kind) {
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
      return 19;  // of these the sign takes 13 and the gap after it 3
    case ControlKind::CommandButton:
    case ControlKind::TextBox:
      return 14;  // borders and margins
    case ControlKind::Frame:
      return 20;  // the line at both sides
    default:
      return 4;
  }
}

// Measures in variants of one font.
class Ruler : public CaptionRuler {
 public:
  Ruler(const LOGFONTW& base, int dpi) : base_(base), dpi_(dpi), context_(GetDC(nullptr)) {}
  ~Ruler() override { ReleaseDC(nullptr, context_); }

  LOGFONTW variant(const CaptionFont& caption) const {
    LOGFONTW font = base_;
    if (!caption.family.empty()) setFamily(font, caption.family);
    setPixels(font, caption.pixels);
    if (caption.stretch != CaptionFont().stretch) {
      font.lfWidth = MulDiv(averageWidth(font), caption.stretch, CaptionFont().stretch);
    }
    return font;
  }

  PixelSize roomFor(const ControlDesign& design) const override {
    const PixelSize place = toPixels(design.place, dpi_).size();
    const int borders = design.kind == ControlKind::TextBox ? kBoxBorders : 0;
    return {place.width - MulDiv(roomBesideCaption(design.kind), dpi_, kUsualDpi),
            place.height - MulDiv(borders, dpi_, kUsualDpi)};
  }

  PixelSize sizeOf(const ControlDesign& design, const CaptionFont& caption,
                   int width) const override {
    const bool isBox = design.kind == ControlKind::TextBox;
    const UINT flags = width == 0 ? DT_SINGLELINE : DT_WORDBREAK | (isBox ? DT_EDITCONTROL : 0U);
    // A label breaks its lines at its edge, not where its letters begin to need room.
    const int edge = isBox ? width : toPixels(design.place, dpi_).width();
    RECT place{0, 0, edge, 0};
    const std::wstring shown = wide(trimEnd(design.caption));
    withFont(variant(caption), [&] {
      DrawTextW(context_, shown.c_str(), static_cast<int>(shown.size()), &place,
                DT_CALCRECT | DT_NOPREFIX | flags);
    });
    return fromRect(place).size();
  }

 private:
  template <class Measure>
  void withFont(const LOGFONTW& logical, Measure measure) const {
    const Font font(CreateFontIndirectW(&logical));
    const HGDIOBJ before = SelectObject(context_, font.get());
    measure();
    SelectObject(context_, before);
  }

  // Of its letters, as LOGFONT counts widths.
  int averageWidth(const LOGFONTW& font) const {
    TEXTMETRICW metrics{};
    withFont(font, [&] { GetTextMetricsW(context_, &metrics); });
    return metrics.tmAveCharWidth;
  }

  LOGFONTW base_;
  int dpi_;
  HDC context_;  // of the screen: elsewhere letters have other widths
};

int leastPixels(int dpi) { return MulDiv(kLeastPixels, dpi, kUsualDpi); }

LOGFONTW captionFontOf(const WindowDesign& design, const LOGFONTW& own, int dpi) {
  const Ruler ruler(own, dpi);
  CaptionFontChoice choice;
  choice.own.pixels = pixelsOf(own);
  choice.families = kNarrowFamilies;
  choice.least = leastPixels(dpi);
  choice.mayBeTooLong = 1;
  return ruler.variant(captionFont(design, choice, ruler));
}

}  // namespace

Win32Fonts::Win32Fonts(const WindowDesign& design, int dpi)
    : dpi_(dpi), own_(messageFont(dpi)), captions_(captionFontOf(design, own_, dpi)) {}

bool Win32Fonts::areStale() const {
  const LOGFONTW now = messageFont(dpi_);
  return std::memcmp(&now, &own_, sizeof now) != 0;
}

HFONT Win32Fonts::fontFor(const ControlDesign& design) {
  const LOGFONTW wanted = design.font.points > 0 ? designedFont(design.font, dpi_) : captions_;
  const Ruler ruler(wanted, dpi_);
  const LOGFONTW font = ruler.variant(
      fontThatFits(design, {.family = {}, .pixels = pixelsOf(wanted)}, leastPixels(dpi_), ruler));
  made_.emplace_back(CreateFontIndirectW(&font));
  return made_.back().get();
}

}  // namespace termvik
