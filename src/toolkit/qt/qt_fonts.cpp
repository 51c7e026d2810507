// SPDX-License-Identifier: MIT
#include "qt_fonts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QStyle>

#include "qt_text.h"
#include "toolkit/shared/captions.h"

namespace termvik {

namespace {

// Sizes follow the twips of the design, not the resolution that a screen claims to have.
constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr int kLeastPixels = 11;  // the size that the captions' places were drawn for
constexpr int kLeastMenuPixels = 9;

// Families as wide as the ones that the designs were drawn with.
const QStringList& sansFamilies() {
  static const QStringList families = {
      QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
      QStringLiteral("Arial"), QStringLiteral("Liberation Sans"), QStringLiteral("Nimbus Sans")};
  return families;
}

// Qt looks for a substitute of a family that is not installed, even where a later one of a font's
// families is; that takes it longer than to make the font (bench/start).
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

QFont with(const CaptionFont& caption, QFont font) {
  if (!caption.family.empty()) font.setFamilies({toQt(caption.family)});
  font.setPixelSize(caption.pixels);
  if (caption.stretch != QFont::Unstretched) font.setStretch(caption.stretch);
  return font;
}

class Ruler : public CaptionRuler {
 public:
  explicit Ruler(const QFont& base) : base_(base) {}

  PixelSize roomFor(const ControlDesign& design) const override {
    const PixelSize place = toPixels(design.place, kDpi).size();
    return {place.width - roomBesideCaption(design), place.height};
  }

  PixelSize sizeOf(const ControlDesign& design, const CaptionFont& caption,
                   int width) const override {
    const QFontMetrics metrics(with(caption, base_));
    const QString text = toQt(trimEnd(design.caption));
    if (width == 0) return {metrics.horizontalAdvance(text), metrics.height()};
    return fromQt(metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, text)).size();
  }

 private:
  QFont base_;
};

}  // namespace

QFont designedFont(const FontDesign& design) {
  QFont font = QApplication::font();
  const QString family = toQt(design.family);
  const bool isSans = sansFamilies().contains(family);
  QStringList families = installed(isSans ? sansFamilies() : QStringList{family});
  families << installed({QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans")});
  families << font.families();
  font.setFamilies(families);
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(static_cast<int>(std::lround(design.points * kPixelsPerPoint)));
  font.setBold(design.bold);
  font.setItalic(design.italic);
  return font;
}

QFont captionFont(const WindowDesign& design) {
  const QFont own = QApplication::font();
  const QFontInfo info(own);
  CaptionFontChoice choice{.own = {fromQt(info.family()), info.pixelSize()}, .least = kLeastPixels};
  for (const QString& family : installed(sansFamilies())) {
    choice.families.push_back(fromQt(family));
  }
  return with(captionFont(design, choice, Ruler(own)), own);
}

void fitMenuBar(QMenuBar& bar, QFont font, int width) {
  bar.setFont(font);
  while (bar.sizeHint().width() > width && font.pixelSize() > kLeastMenuPixels) {
    font.setPixelSize(font.pixelSize() - 1);
    bar.setFont(font);
  }
}

void shrinkToFit(QWidget& widget, const ControlDesign& design) {
  const QFont font = widget.font();
  const CaptionFont wanted{.family = {}, .pixels = font.pixelSize()};
  widget.setFont(with(fontThatFits(design, wanted, kLeastPixels, Ruler(font)), font));
}

}  // namespace termvik
