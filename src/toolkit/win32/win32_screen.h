// SPDX-License-Identifier: MIT
// Screens, their resolutions and the fonts that go with them.
#pragma once

#include <windows.h>

namespace termvik {

inline constexpr int kUsualDpi = 96;

// The pixels to the inch with which a window shows itself.
int dpiOf(HWND window);

// GetSystemMetrics at a resolution.
int systemMetric(int metric, int dpi);

// The font of messages and captions that the user has chosen for a screen of `dpi`.
LOGFONTW messageFont(int dpi);

// The size in pixels of the screen that a window is on, the task bar's part included.
SIZE screenSize(HWND window);

}  // namespace termvik
