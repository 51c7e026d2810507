// SPDX-License-Identifier: MIT
// Fonts for the controls, small enough that no caption is clipped in the place it was designed for.
#pragma once

#include <QFont>
#include <QMenuBar>
#include <QWidget>

#include "common/toolkit/window_design.h"

namespace termvik {

// The font that a design names, or one of the same proportions where it is not installed.
QFont designedFont(const FontDesign& design);

// The toolkit's own font as a window uses it for all controls whose design names none: in the
// largest size in which every caption of the window fits.
QFont captionFont(const WindowDesign& design);

// Makes a widget's font smaller until its caption fits `place`.
void shrinkToFit(QWidget& widget, const ControlDesign& design);

// Gives the menu bar the largest size of `font` in which all its items fit `width` pixels.
void fitMenuBar(QMenuBar& bar, QFont font, int width);

}  // namespace termvik
