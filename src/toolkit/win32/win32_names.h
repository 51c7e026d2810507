// What a screen reader says of a control that has no caption.
#pragma once

#include <windows.h>

#include "common/system/text.h"

namespace termvik {

void giveSpokenName(HWND control, TextView name);

// To be called before the control goes, or the system keeps the name.
void takeSpokenName(HWND control);

}  // namespace termvik
