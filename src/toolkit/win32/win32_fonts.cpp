#include "toolkit/win32/win32_fonts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "toolkit/win32/win32_screen.h"
#include "toolkit/win32/win32_text.h"

namespace termvik {

namespace {

constexpr float kPointsPerInch = 72;
constexpr int kLeastPixels =
    11;  // at the usual resolution: what the captions' places were drawn for

constexpr int kBoxBorders = 6;  // at the usual resolution: above and below the text of a box

// Narrower than the message fonts of today's Windows, in the order of preference.
constexpr std::array<TextView, 4> kNarrowFamilies = {u"Tahoma", u"Microsoft Sans Serif", u"Arial",
                                                     u"Liberation Sans"};

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

// Measures texts in one font.
class Ruler {
 public:
  explicit Ruler(const LOGFONTW& font)
      : font_(CreateFontIndirectW(&font)),
        context_(GetDC(nullptr)),  // of the screen: elsewhere letters have other widths
        before_(SelectObject(context_, font_.get())) {}
  ~Ruler() {
    SelectObject(context_, before_);
    ReleaseDC(nullptr, context_);
  }
  Ruler(const Ruler&) = delete;
  Ruler& operator=(const Ruler&) = delete;

  // The size of a text on one line, or wrapped at `width` pixels.
  SIZE sizeOf(TextView text, UINT flags, int width = 0) const {
    RECT place{0, 0, width, 0};
    const std::wstring shown = wide(text);
    DrawTextW(context_, shown.c_str(), static_cast<int>(shown.size()), &place, DT_CALCRECT | flags);
    return {widthOf(place), heightOf(place)};
  }

 private:
  Font font_;
  HDC context_;
  HGDIOBJ before_;
};

// What a control needs beside its caption, in pixels at the usual resolution.
int roomBesideCaption(ControlKind kind) {
  switch (kind) {
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
      return 20;  // the sign and the gaps beside the caption
    case ControlKind::CommandButton:
    case ControlKind::TextBox:
      return 14;  // borders and margins
    case ControlKind::Frame:
      return 20;  // the line at both sides
    default:
      return 4;  // letters can reach beyond the width that they are said to have
  }
}

bool captionFits(const ControlDesign& design, const LOGFONTW& font, int dpi) {
  const Ruler ruler(font);
  const RECT place = toPixels(design.place, dpi);
  const int width = widthOf(place) - MulDiv(roomBesideCaption(design.kind), dpi, kUsualDpi);
  if (!design.multiLine) return ruler.sizeOf(design.caption, DT_SINGLELINE).cx <= width;
  const bool isBox = design.kind == ControlKind::TextBox;
  const UINT flags = DT_WORDBREAK | DT_NOPREFIX | (isBox ? DT_EDITCONTROL : 0);
  const SIZE needed = ruler.sizeOf(trimEnd(design.caption), flags, width);
  const int borders = isBox ? MulDiv(kBoxBorders, dpi, kUsualDpi) : 0;
  return needed.cx <= width && needed.cy <= heightOf(place) - borders;
}

// Texts to be read shrink by themselves: a long one must not make all captions small.
bool allCaptionsFit(const WindowDesign& design, const LOGFONTW& font, int dpi) {
  return std::all_of(design.controls.begin(), design.controls.end(), [&](const auto& control) {
    const bool sharesFont = control.font.points == 0 && control.kind != ControlKind::TextBox;
    return !sharesFont || captionFits(control, font, dpi);
  });
}

LOGFONTW captionFont(const WindowDesign& design, int dpi) {
  LOGFONTW font = messageFont(dpi);
  const int least = MulDiv(kLeastPixels, dpi, kUsualDpi);
  const int pixels = std::max(pixelsOf(font), least);
  const auto shrinksToFit = [&] {
    for (int size = pixels; size >= least; --size) {
      setPixels(font, size);
      if (allCaptionsFit(design, font, dpi)) return true;
    }
    return false;
  };
  if (shrinksToFit()) return font;
  for (const TextView family : kNarrowFamilies) {
    setFamily(font, family);
    if (shrinksToFit()) break;
  }
  return font;
}

}  // namespace

Win32Fonts::Win32Fonts(const WindowDesign& design, int dpi)
    : dpi_(dpi), captions_(captionFont(design, dpi)) {}

HFONT Win32Fonts::fontFor(const ControlDesign& design) {
  LOGFONTW font = design.font.points > 0 ? designedFont(design.font, dpi_) : captions_;
  if (!design.caption.empty()) {
    while (pixelsOf(font) > 1 && !captionFits(design, font, dpi_)) {
      setPixels(font, pixelsOf(font) - 1);
    }
  }
  made_.emplace_back(CreateFontIndirectW(&font));
  return made_.back().get();
}

}  // namespace termvik
