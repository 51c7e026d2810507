// SPDX-License-Identifier: MIT
// What the About box is made of.
#pragma once

#include "common/toolkit/window_design.h"

namespace termvik {

WindowDesign frmAboutDesign();

}  // namespace termvik
