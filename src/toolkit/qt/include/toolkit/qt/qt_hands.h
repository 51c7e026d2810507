// SPDX-License-Identifier: MIT
// Hands on a Qt window: real key and mouse events on real widgets.
#pragma once

#include <memory>

#include "toolkit/shared/hands.h"

namespace termvik {

// Makes the QApplication if there is none, on Qt's offscreen platform with a screen of 1920 by 1080
// pixels unless QT_QPA_PLATFORM says otherwise.
std::unique_ptr<Hands> makeQtHands(const Collation& collation);

}  // namespace termvik
