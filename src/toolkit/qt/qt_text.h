// SPDX-License-Identifier: MIT
// Between the program's texts and measures and Qt's.
#pragma once

#include <QRect>
#include <QString>

#include "common/system/text.h"
#include "toolkit/shared/pixels.h"

namespace termvik {

inline QString toQt(TextView text) {
  return QStringView(text.data(), static_cast<qsizetype>(text.size())).toString();
}

inline Text fromQt(const QString& text) { return text.toStdU16String(); }

inline Qt::Alignment qtAlignment(Alignment alignment) {
  switch (alignment) {
    case Alignment::Right:
      return Qt::AlignRight;
    case Alignment::Centre:
      return Qt::AlignHCenter;
    default:
      return Qt::AlignLeft;
  }
}

// A logical pixel is 15 twips on every screen; Qt does the rest for high resolutions.
inline constexpr int kDpi = 96;

inline int toPixels(float twips) { return toPixels(twips, kDpi); }
inline float toTwips(int pixels) { return toTwips(pixels, kDpi); }

inline QRect toQt(const PixelRect& place) {
  return {place.left, place.top, place.width(), place.height()};
}

inline PixelRect fromQt(const QRect& place) {
  return {place.left(), place.top(), place.left() + place.width(), place.top() + place.height()};
}

}  // namespace termvik
