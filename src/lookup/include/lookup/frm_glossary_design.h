// SPDX-License-Identifier: MIT
// What the main window is made of.
#pragma once

#include "common/toolkit/window_design.h"

namespace termvik {

WindowDesign frmGlossaryDesign();

}  // namespace termvik
