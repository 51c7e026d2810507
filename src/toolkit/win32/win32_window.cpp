// SPDX-License-Identifier: MIT
#include "win32_window.h"

#include <algorithm>
#include <commctrl.h>
#include <utility>

#include "toolkit/win32/win32_toolkit.h"
#include "win32_names.h"
#include "win32_screen.h"
#include "win32_text.h"

namespace termvik {

namespace {

constexpr const wchar_t* kClassName = L"TermvikWindow";

POINT pointOf(LPARAM mouse) {
  return {static_cast<short>(LOWORD(mouse)), static_cast<short>(HIWORD(mouse))};
}

}  // namespace

void Win32Window::registerClass() {
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = &procedure;
  kind.hInstance = GetModuleHandleW(nullptr);
  kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  kind.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  kind.lpszClassName = kClassName;
  RegisterClassExW(&kind);  // fails without harm when it is registered already
}

Win32Window::Win32Window(Win32Toolkit& toolkit, const Collation& collation,
                         const WindowDesign& design)
    : Window(design), toolkit_(toolkit) {
  createWindow();
  dpi_ = dpiOf(hwnd_);
  icons_ = std::make_unique<Win32Icons>(hwnd_, dpi_);
  giveSpokenNames(hwnd_, design.accessibleName);
  addControls(collation);
  giveClientSize();
  toolkit_.opened(*this);
}

Win32Window::~Win32Window() {
  Win32Window::Unload();
  for (const auto& control : controls()) {
    const ControlDesign& design = control->design();
    if (design.accessibleName.empty() && design.accessibleGroup.empty()) continue;
    takeSpokenNames(win32Widget(*control).handle());
  }
  if (!design().accessibleName.empty()) takeSpokenNames(hwnd_);
  DestroyWindow(hwnd_);
}

// At a place that the system chooses; a window without a title bar belongs to the one that is open,
// stays in front of it and begins on its screen.
void Win32Window::createWindow() {
  RECT place{CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT};
  DWORD style = WS_OVERLAPPEDWINDOW;
  HWND owner = nullptr;
  if (!design().hasTitleBar) {
    style = WS_POPUP;
    place = {};
    if (!toolkit_.openWindows().empty()) {
      const Win32Window& opener = *toolkit_.openWindows().back();
      owner = opener.hwnd_;
      place = toRect(opener.place_.pixels());
    }
  }
  CreateWindowExW(0, kClassName, wide(design().caption).c_str(), style | WS_CLIPCHILDREN,
                  place.left, place.top, place.right, place.bottom, owner, makeMenu(),
                  GetModuleHandleW(nullptr), this);
}

LRESULT CALLBACK Win32Window::procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* made =
        static_cast<Win32Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    made->hwnd_ = hwnd;
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
  }
  auto* window = reinterpret_cast<Win32Window*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  return window != nullptr ? window->handle(message, wParam, lParam)
                           : DefWindowProcW(hwnd, message, wParam, lParam);
}

LRESULT Win32Window::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto result = handleControls(message, wParam, lParam)) return *result;
  if (const auto result = handleUser(message, wParam, lParam)) return *result;
  if (const auto result = handlePlace(message, wParam, lParam)) return *result;
  return DefWindowProcW(hwnd_, message, wParam, lParam);
}

// What the controls and the menu report and ask.
std::optional<LRESULT> Win32Window::handleControls(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      command(wParam, lParam);
      return 0;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lParam);
      Control* control = controlOf(header.hwndFrom);
      if (control == nullptr) return std::nullopt;
      return win32Widget(*control).reports(header);
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (Control* control = controlOf(item.hwndItem)) win32Widget(*control).draw(item);
      return TRUE;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT: {
      const Control* control = controlOf(reinterpret_cast<HWND>(lParam));
      if (control == nullptr) return std::nullopt;
      const HBRUSH brush = chooseColours(reinterpret_cast<HDC>(wParam), control->design());
      return reinterpret_cast<LRESULT>(brush);
    }
    case DM_GETDEFID: {
      const HWND button = defaultButton();
      return button != nullptr ? MAKELONG(GetDlgCtrlID(button), DC_HASDEFID) : 0;
    }
    default:
      return std::nullopt;
  }
}

// What the user and the system do to the window as a whole.
std::optional<LRESULT> Win32Window::handleUser(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
      if (isBareAt(pointOf(lParam))) SetCapture(hwnd_);  // so that the release comes here too
      return 0;
    case WM_LBUTTONUP:
      if (GetCapture() == hwnd_) userReleasesAt(pointOf(lParam));
      return 0;
    case WM_SETFOCUS:
      focusControl();
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) userLeaves();
      return std::nullopt;
    case WM_CLOSE:
      if (IsWindowEnabled(hwnd_) != 0) userCloses();  // not while a modal box is open
      return 0;
    case WM_ENDSESSION:  // no message follows
      if (wParam != 0) userCloses();
      return 0;
    case WM_PAINT:
      if (design().hasTitleBar) return std::nullopt;
      paintBorder();
      return 0;
    case WM_SYSCOLORCHANGE:
      for (const auto& control : controls()) {
        SendMessageW(win32Widget(*control).handle(), message, wParam, lParam);
      }
      return std::nullopt;
    case WM_SETTINGCHANGE:
      if (fonts_->areStale()) applyFonts();
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> Win32Window::handlePlace(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETMINMAXINFO:
      freeOfLimits(*reinterpret_cast<MINMAXINFO*>(lParam));
      return 0;
    case WM_WINDOWPOSCHANGED:
      DefWindowProcW(hwnd_, message, wParam, lParam);
      readPlace();
      return 0;
    case WM_DPICHANGED:
      resolutionChanges(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return 0;
    default:
      return std::nullopt;
  }
}

void Win32Window::command(WPARAM wParam, LPARAM lParam) {
  if (IsWindowEnabled(hwnd_) == 0)
    return;  // another program can send one while a modal box is open
  const UINT id = LOWORD(wParam);
  Control* control = controlOf(reinterpret_cast<HWND>(lParam));
  if (control != nullptr) {
    win32Widget(*control).reports(HIWORD(wParam));
  } else if (MenuItem* item = menuItemOf(id)) {
    item->userChooses();
  } else if (id == IDCANCEL) {  // Esc
    control = controlWith(&ControlDesign::isCancel);
    if (control != nullptr) win32Widget(*control).reports(BN_CLICKED);
  }
}

// The button that Enter presses: the one that has the focus, otherwise the one of the design.
HWND Win32Window::defaultButton() const {
  Control* focused = controlOf(GetFocus());
  const bool isButton = dynamic_cast<Win32CommandButton*>(focused) != nullptr;
  Control* button = isButton ? focused : controlWith(&ControlDesign::isDefault);
  return button != nullptr ? win32Widget(*button).handle() : nullptr;
}

void Win32Window::userReleasesAt(POINT position) const {
  ReleaseCapture();
  if (isBareAt(position) && open_ && Click) Click();
}

// The mouse comes to the window also where a label, a picture, a frame or something that is
// switched off lies. A line is no control: it parts the bare surface.
bool Win32Window::isBareAt(POINT position) const {
  const HWND at = ChildWindowFromPointEx(hwnd_, position, CWP_SKIPINVISIBLE);
  const Control* control = controlOf(at);
  return at == hwnd_ || (control != nullptr && control->design().kind == ControlKind::Line);
}

void Win32Window::userLeaves() {
  if (controlOf(GetFocus()) != nullptr) lastFocus_ = GetFocus();
  if (open_ && Deactivate) Deactivate();
}

// The window itself has no use for keys: they go to the control that had the focus before another
// window did, or to the first one.
void Win32Window::focusControl() const {
  const bool canTakeIt = lastFocus_ != nullptr && IsWindowEnabled(lastFocus_) != 0;
  SetFocus(canTakeIt ? lastFocus_ : GetNextDlgTabItem(hwnd_, nullptr, FALSE));
}

// A window without a frame of the system's gets a line around it.
void Win32Window::paintBorder() const {
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(hwnd_, &paint);
  RECT client;
  GetClientRect(hwnd_, &client);
  FrameRect(context, &client, GetSysColorBrush(COLOR_WINDOWFRAME));
  EndPaint(hwnd_, &paint);
}

void Win32Window::Show() {
  raiseResize();
  ShowWindow(hwnd_, std::exchange(maximiseAtShow_, false) ? SW_SHOWMAXIMIZED : SW_SHOW);
  readPlace();
}

void Win32Window::ShowModal() {
  for (const Win32Window* other : toolkit_.openWindows()) {
    if (other == this || IsWindowEnabled(other->hwnd()) == 0) continue;
    barred_.push_back(other->hwnd());
    EnableWindow(other->hwnd(), FALSE);
  }
  Show();
  toolkit_.handleMessages([this] { return !open_; });
  Unload();
}

void Win32Window::Unload() {
  if (!open_) return;
  open_ = false;
  toolkit_.closed(*this);
  // Before this window goes, or the system would activate another program's.
  for (const HWND other : std::exchange(barred_, {})) EnableWindow(other, TRUE);
  ShowWindow(hwnd_, SW_HIDE);
  PostMessageW(hwnd_, WM_NULL, 0, 0);  // a loop that waits for the window's end looks again
}

// Whole, since it cuts off what the reader says by itself.
void Win32Window::speak(TextView utterance, TextView) {
  if (announcer_ == nullptr) announcer_ = std::make_unique<Win32Announcer>(hwnd_);
  announcer_->say(utterance);
}

void Win32Window::userCloses() {
  if (!open_) return;
  if (QueryUnload) QueryUnload();
  Unload();
}

}  // namespace termvik
