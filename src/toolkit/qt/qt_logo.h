// The logo, ready to be painted: every start shows it, and its picture would take longer to decode
// than the window takes to be built (start_bench). make_pixels writes both at build time.
#pragma once

#include <QRgb>
#include <QSize>

namespace termvik {

extern const QSize kLogoPixels;  // its width and height
extern const QRgb kLogoPixel[];  // line by line, premultiplied

}  // namespace termvik
