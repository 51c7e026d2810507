// Between the program's texts and measures and Qt's.
#pragma once

#include <cmath>

#include <QRect>
#include <QString>

#include "common/text.h"
#include "common/window_design.h"

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
inline constexpr float kTwipsPerPixel = 15;

inline int toPixels(float twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }

inline float toTwips(int pixels) { return static_cast<float>(pixels) * kTwipsPerPixel; }

// Right and bottom edges are rounded for themselves, so that controls that share an edge in twips
// share it in pixels.
inline QRect toPixels(const Place& place) {
  const int left = toPixels(place.left);
  const int top = toPixels(place.top);
  return {left, top, toPixels(place.left + place.width) - left,
          toPixels(place.top + place.height) - top};
}

}  // namespace termvik
