#include "toolkit/win32/win32_toolkit.h"

#include <commctrl.h>
#include <objidl.h>

// Behind the headers that it needs.
#include <gdiplus.h>

#include "common/app.h"
#include "toolkit/win32/win32_text.h"
#include "toolkit/win32/win32_window.h"

namespace termvik {

namespace {

// Another program can hold the clipboard for a moment: how often to try, and how long to wait.
constexpr int kClipboardTries = 10;
constexpr DWORD kClipboardWait = 20;  // milliseconds

bool openClipboard(HWND owner) {
  for (int i = 0; i < kClipboardTries; ++i) {
    if (OpenClipboard(owner) != 0) return true;
    Sleep(kClipboardWait);
  }
  return false;
}

// A copy of a text, with a 0 behind it, in memory that the clipboard takes over; null when there is
// none.
HGLOBAL copyForClipboard(const std::wstring& text) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
  if (memory == nullptr) return nullptr;
  auto* const copy = static_cast<wchar_t*>(GlobalLock(memory));
  copy[text.copy(copy, text.size())] = L'\0';
  GlobalUnlock(memory);
  return memory;
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
  MessageBoxW(owner, shownText(prompt).c_str(), wide(kProgramName).c_str(), MB_OK);
}

void Win32Toolkit::setClipboardText(TextView text) {
  if (!openClipboard(open_.empty() ? nullptr : open_.front()->hwnd())) return;
  EmptyClipboard();
  const HGLOBAL copy = copyForClipboard(shownText(text));
  if (copy != nullptr && SetClipboardData(CF_UNICODETEXT, copy) == nullptr) GlobalFree(copy);
  CloseClipboard();
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
