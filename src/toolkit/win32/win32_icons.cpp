// SPDX-License-Identifier: MIT
#include "win32_icons.h"

#include "win32_resources.h"
#include "win32_screen.h"

namespace termvik {

Win32Icons::Win32Icons(HWND window, int dpi)
    : large_(load(SM_CXICON, SM_CYICON, dpi)), small_(load(SM_CXSMICON, SM_CYSMICON, dpi)) {
  SendMessageW(window, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(large_.get()));
  SendMessageW(window, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small_.get()));
}

Win32Icons::Icon Win32Icons::load(int widthMetric, int heightMetric, int dpi) {
  return Icon(static_cast<HICON>(LoadImageW(
      GetModuleHandleW(nullptr), MAKEINTRESOURCEW(TERMVIK_ICON), IMAGE_ICON,
      systemMetric(widthMetric, dpi), systemMetric(heightMetric, dpi), LR_DEFAULTCOLOR)));
}

}  // namespace termvik
