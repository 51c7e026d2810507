// SPDX-License-Identifier: MIT
#include "win32_screen.h"

#include "win32_text.h"

namespace termvik {

namespace {

// A function of user32.dll that older editions of Windows lack; null there.
template <class Function>
Function* laterFunction(const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

int dpiOfDesktop() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dpi;
}

}  // namespace

int dpiOf(HWND window) {
  static const auto ofWindow = laterFunction<UINT WINAPI(HWND)>("GetDpiForWindow");
  const UINT dpi = ofWindow != nullptr ? ofWindow(window) : 0;
  return dpi > 0 ? static_cast<int>(dpi) : dpiOfDesktop();
}

int systemMetric(int metric, int dpi) {
  static const auto forDpi = laterFunction<int WINAPI(int, UINT)>("GetSystemMetricsForDpi");
  if (forDpi != nullptr) return forDpi(metric, static_cast<UINT>(dpi));
  return MulDiv(GetSystemMetrics(metric), dpi, dpiOfDesktop());
}

LOGFONTW messageFont(int dpi) {
  static const auto forDpi =
      laterFunction<BOOL WINAPI(UINT, UINT, void*, UINT, UINT)>("SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (forDpi != nullptr &&
      forDpi(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0, static_cast<UINT>(dpi)) != 0) {
    return metrics.lfMessageFont;
  }
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, dpiOfDesktop());
  return metrics.lfMessageFont;
}

SIZE screenSize(HWND window) {
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &screen);
  return {widthOf(screen.rcMonitor), heightOf(screen.rcMonitor)};
}

}  // namespace termvik
