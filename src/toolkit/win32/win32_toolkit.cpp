// SPDX-License-Identifier: MIT
#include "toolkit/win32/win32_toolkit.h"

#include <commctrl.h>
#include <objidl.h>

// After the header that it needs.
#include <gdiplus.h>

#include "common/system/app.h"
#include "toolkit/shared/shown_limits.h"
#include "win32_fonts.h"
#include "win32_screen.h"
#include "win32_text.h"
#include "win32_window.h"

namespace termvik {

namespace {

// Another program can hold the clipboard for a moment: how often to try, and how long to wait.
constexpr int kClipboardTries = 100;
constexpr DWORD kClipboardWait = 20;  // milliseconds

bool openClipboard(HWND owner) {
  for (int i = 0; i < kClipboardTries; ++i) {
    if (OpenClipboard(owner) != 0) return true;
    Sleep(kClipboardWait);
  }
  return false;
}

// Puts a copy of the text, with a 0 after it, onto the open clipboard, which takes the memory over.
bool giveToClipboard(const std::wstring& text) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
  if (memory == nullptr) return false;
  auto* const copy = static_cast<wchar_t*>(GlobalLock(memory));
  copy[text.copy(copy, text.size())] = L'\0';
  GlobalUnlock(memory);
  if (EmptyClipboard() != 0 && SetClipboardData(CF_UNICODETEXT, memory) != nullptr) return true;
  GlobalFree(memory);
  return false;
}

// In pixels at the usual resolution: what a message box has around its text at the most, and the
// least width at which it breaks the lines of its text.
constexpr int kAroundMessage = 150;
constexpr int kMessageWidth = 240;

// Whether a message box with that text has its button on the screen.
bool fitsScreen(TextView text, HWND owner) {
  const int dpi = dpiOf(owner);
  const LOGFONTW design = messageFont(dpi);
  const Font font(CreateFontIndirectW(&design));
  const HDC context = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(context, font.get());
  RECT place{0, 0, MulDiv(kMessageWidth, dpi, kUsualDpi), 0};
  DrawTextW(context, shownText(text).c_str(), -1, &place,
            DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
  SelectObject(context, before);
  ReleaseDC(nullptr, context);
  const SIZE screen = screenSize(owner);
  const int around = MulDiv(kAroundMessage, dpi, kUsualDpi);
  return place.right <= screen.cx - around && place.bottom <= screen.cy - around;
}

}  // namespace

Win32Toolkit::Win32Toolkit(const Collation& collation) : collation_(collation) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&controls);
  const Gdiplus::GdiplusStartupInput input;
  Gdiplus::GdiplusStartup(&pictures_, &input, nullptr);
  Win32Window::registerClass();
}

Win32Toolkit::~Win32Toolkit() {
  Gdiplus::GdiplusShutdown(pictures_);
  CoUninitialize();
}

std::unique_ptr<Window> Win32Toolkit::createWindow(const WindowDesign& design) {
  return std::make_unique<Win32Window>(*this, collation_, design);
}

std::vector<Window*> Win32Toolkit::Forms() const { return {open_.begin(), open_.end()}; }

void Win32Toolkit::MsgBox(TextView prompt) {
  HWND owner = nullptr;
  for (const Win32Window* window : open_) {
    if (IsWindowVisible(window->hwnd()) != 0) owner = window->hwnd();
  }
  // Without an owner, too, no window of the program takes input meanwhile.
  constexpr UINT kHow = MB_OK | MB_TASKMODAL;
  const Text shown =
      messageThatFits(prompt, [owner](TextView text) { return fitsScreen(text, owner); });
  MessageBoxW(owner, shownText(shown).c_str(), wide(kProgramName).c_str(), kHow);
}

bool Win32Toolkit::setClipboardText(TextView text) {
  if (!openClipboard(open_.empty() ? nullptr : open_.front()->hwnd())) return false;
  const bool isThere = giveToClipboard(shownText(text));
  CloseClipboard();
  return isThere;
}

void Win32Toolkit::handleMessages(const std::function<bool()>& isOver) const {
  MSG message;
  while (!isOver()) {
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
      PostQuitMessage(0);  // for the loop around this one
      return;
    }
    handleMessage(message);
  }
}

void Win32Toolkit::handleMessage(MSG& message) const {
  for (const Win32Window* window : open_) {
    const HWND hwnd = window->hwnd();
    const bool isInside = message.hwnd == hwnd || IsChild(hwnd, message.hwnd) != 0;
    if (isInside && IsDialogMessageW(hwnd, &message) != 0) return;
  }
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace termvik
