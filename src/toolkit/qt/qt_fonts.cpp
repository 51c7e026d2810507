#include "toolkit/qt/qt_fonts.h"

#include <algorithm>

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QStyle>

#include "toolkit/qt/qt_text.h"

namespace termvik {

namespace {

// Sizes follow the twips of the design, not the resolution that a screen claims to have.
constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr int kLeastPixels = 11;  // the size that the captions' places were drawn for
constexpr int kLeastMenuPixels = 9;
constexpr int kStretchStep = 5;
constexpr int kLeastStretch = 75;

// Families as wide as the ones that the designs were drawn with.
const QStringList& sansFamilies() {
  static const QStringList families = {
      QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
      QStringLiteral("Arial"), QStringLiteral("Liberation Sans"), QStringLiteral("Nimbus Sans")};
  return families;
}

// Qt looks for a substitute of a family that is not installed, even where a later one of a font's
// families is; that takes it longer than to make the font (start_bench).
QStringList installed(const QStringList& families) {
  static const QStringList all = QFontDatabase::families();
  QStringList found;
  for (const QString& family : families) {
    if (all.contains(family)) found << family;
  }
  return found;
}

// What a control needs beside its caption.
int roomBesideCaption(const ControlDesign& design) {
  const QStyle& style = *QApplication::style();
  switch (design.kind) {
    case ControlKind::OptionButton:
      return style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
             style.pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
    case ControlKind::CheckBox:
      return style.pixelMetric(QStyle::PM_IndicatorWidth) +
             style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    case ControlKind::CommandButton:
      return 2 * style.pixelMetric(QStyle::PM_ButtonMargin);
    case ControlKind::TextBox:
      return 2 * style.pixelMetric(QStyle::PM_DefaultFrameWidth) + 10;  // and document margins
    default:
      return 2;
  }
}

bool captionFits(const ControlDesign& design, const QFont& font) {
  const QFontMetrics metrics(font);
  const QRect place = toPixels(design.place);
  const int width = place.width() - roomBesideCaption(design);
  if (!design.multiLine) return metrics.horizontalAdvance(toQt(design.caption)) <= width;
  const QRect needed =
      metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, toQt(trimEnd(design.caption)));
  return needed.width() <= width && needed.height() <= place.height();
}

// Texts to be read shrink by themselves: a long one must not make all captions small.
bool allCaptionsFit(const WindowDesign& design, const QFont& font) {
  return std::all_of(design.controls.begin(), design.controls.end(), [&](const auto& control) {
    const bool sharesFont = control.font.points == 0 && control.kind != ControlKind::TextBox;
    return !sharesFont || captionFits(control, font);
  });
}

}  // namespace

QFont designedFont(const FontDesign& design) {
  QFont font = QApplication::font();
  const QString family = toQt(design.family);
  const bool isSans = sansFamilies().contains(family);
  QStringList families = installed(isSans ? sansFamilies() : QStringList{family});
  families << QStringLiteral("DejaVu Sans") << font.families();
  font.setFamilies(families);
  font.setPixelSize(static_cast<int>(std::lround(design.points * kPixelsPerPoint)));
  font.setBold(design.bold);
  font.setItalic(design.italic);
  return font;
}

QFont captionFont(const WindowDesign& design) {
  QFont font = QApplication::font();
  const int pixels = std::max(QFontInfo(font).pixelSize(), kLeastPixels);
  for (const QString& family : QStringList{QFontInfo(font).family()} + installed(sansFamilies())) {
    font.setFamilies({family});
    for (int size = pixels; size >= kLeastPixels; --size) {
      font.setPixelSize(size);
      if (allCaptionsFit(design, font)) return font;
    }
  }
  // Only wide fonts are installed: narrow the letters rather than make them too small to read.
  int stretch = QFont::Unstretched;
  while (stretch > kLeastStretch && !allCaptionsFit(design, font)) {
    font.setStretch(stretch -= kStretchStep);
  }
  return font;
}

void fitMenuBar(QMenuBar& bar, QFont font, int width) {
  bar.setFont(font);
  while (bar.sizeHint().width() > width && font.pixelSize() > kLeastMenuPixels) {
    font.setPixelSize(font.pixelSize() - 1);
    bar.setFont(font);
  }
}

void shrinkToFit(QWidget& widget, const ControlDesign& design) {
  QFont font = widget.font();
  while (font.pixelSize() > 1 && !captionFits(design, font)) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  widget.setFont(font);
}

}  // namespace termvik
