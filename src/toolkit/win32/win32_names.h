// SPDX-License-Identifier: MIT
// What a screen reader says of a window or control that has no caption, and of a control's group.
#pragma once

#include <windows.h>

#include "common/system/text.h"

namespace termvik {

// Nothing for an empty text.
void giveSpokenNames(HWND window, TextView name, TextView group = {});

// To be called before the window goes, or the system keeps the names.
void takeSpokenNames(HWND window);

}  // namespace termvik
