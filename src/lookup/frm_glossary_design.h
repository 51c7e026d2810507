// What the main window is made of.
#pragma once

#include "common/window_design.h"

namespace termvik {

WindowDesign frmGlossaryDesign();

}  // namespace termvik
