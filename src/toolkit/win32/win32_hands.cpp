// SPDX-License-Identifier: MIT
#include "toolkit/win32/win32_hands.h"

#include <array>

#include "toolkit/win32/win32_toolkit.h"
#include "win32_controls.h"
#include "win32_text.h"
#include "win32_window.h"

// After the header that it needs.
#include <commctrl.h>

namespace termvik {

namespace {

constexpr UINT kAnswer = WM_APP;  // to a window of the hands' own: a modal box is there
constexpr const wchar_t* kMessageBoxClass = L"#32770";

std::wstring textOf(HWND hwnd) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(hwnd)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(hwnd, text.data(), static_cast<int>(text.size()))));
  return text;
}

bool isOfClass(HWND hwnd, std::wstring_view name) {
  std::array<wchar_t, 64> found{};
  GetClassNameW(hwnd, found.data(), static_cast<int>(found.size()));
  return name == found.data();
}

// The text that a message box shows: of its labels the one that is no icon.
std::wstring promptOf(HWND box) {
  for (HWND child = nullptr; (child = FindWindowExW(box, child, WC_STATICW, nullptr)) != nullptr;) {
    if (GetWindowTextLengthW(child) > 0) return textOf(child);
  }
  return {};
}

// To the window that it lies in: what is switched off, and labels, pictures and frames.
bool letsMouseThrough(HWND control, POINT position) {
  ClientToScreen(control, &position);
  const LPARAM at = MAKELPARAM(position.x, position.y);
  return IsWindowEnabled(control) == 0 ||
         SendMessageW(control, WM_NCHITTEST, 0, at) == HTTRANSPARENT;
}

Text clipboardText() {
  if (OpenClipboard(nullptr) == 0) return {};
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  Text text;
  if (data != nullptr) {
    text = fromWide(static_cast<const wchar_t*>(GlobalLock(data)));
    GlobalUnlock(data);
  }
  CloseClipboard();
  return text;
}

// The toolkit, with an eye on the clipboard.
class WatchedToolkit : public Win32Toolkit {
 public:
  using Win32Toolkit::Win32Toolkit;

  bool setClipboardText(TextView text) override {
    const bool isThere = Win32Toolkit::setClipboardText(text);
    if (isThere && seesClipboard) seesClipboard();
    return isThere;
  }

  std::function<void()> seesClipboard;
};

class Win32Hands : public Hands {
 public:
  explicit Win32Hands(const Collation& collation)
      : toolkit_(collation),
        own_(CreateWindowExW(0, WC_STATICW, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                             nullptr)) {
    hands_ = this;
    SetWindowLongPtrW(own_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ownProcedure));
    hook_ = SetWindowsHookExW(WH_CBT, &seeWindow, nullptr, GetCurrentThreadId());
    toolkit_.seesClipboard = [this] {
      if (seesClipboard) seesClipboard(clipboardText());
    };
  }

  ~Win32Hands() override {
    UnhookWindowsHookEx(hook_);
    DestroyWindow(own_);
    hands_ = nullptr;
  }

  Toolkit& toolkit() override { return toolkit_; }

  void replaceText(EditBox& box, TextView text) override {
    if (box.text() == text) return;
    const HWND edit = win32Widget(box).handle();
    SendMessageW(edit, EM_SETSEL, 0, -1);
    SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(wide(text).c_str()));
    settle();
  }

  void type(EditBox& box, char16_t character) override {
    const HWND edit = win32Widget(box).handle();
    const Text before = box.text();
    // A key of its own, as programs send it that type for a user; the character comes with it
    // whatever the keyboard.
    SendMessageW(edit, WM_KEYDOWN, VK_PACKET, 1);
    SendMessageW(edit, WM_CHAR, character, 1);
    SendMessageW(edit, WM_KEYUP, VK_PACKET, 1);
    // What no key of a keyboard gives comes from an input method.
    if (box.text() == before && character < u' ') {
      const std::array<wchar_t, 2> text = {static_cast<wchar_t>(character), L'\0'};
      SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.data()));
    }
    settle();
  }

  void goToEnd(EditBox& box) override {
    const HWND edit = win32Widget(box).handle();
    const int end = GetWindowTextLengthW(edit);
    SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(end), end);
  }

  void press(Control& control, std::int16_t keyCode) override {
    const HWND handle = win32Widget(control).handle();
    SetFocus(handle);  // keys go where it is
    PostMessageW(handle, WM_KEYDOWN, static_cast<WPARAM>(keyCode), 1);
    PostMessageW(handle, WM_KEYUP, static_cast<WPARAM>(keyCode), 1);
    settle();
  }

  void click(Control& control) override {
    const HWND handle = win32Widget(control).handle();
    RECT place;
    GetClientRect(handle, &place);
    clickAt(handle, {place.right / 2, place.bottom / 2});
  }

  void clickCorner(Window& window) override {
    clickAt(dynamic_cast<Win32Window&>(window).hwnd(), {2, 2});
  }

  void clickRow(ListBox& list, std::int32_t row) override {
    const HWND view = win32Widget(list).handle();
    SendMessageW(view, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    RECT place{};
    place.left = LVIR_BOUNDS;
    SendMessageW(view, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    const POINT middle = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    RECT shown;
    GetClientRect(view, &shown);
    if (PtInRect(&shown, middle) != FALSE) {
      clickAt(view, middle);
      return;
    }
    // The list is too small to show it.
    LVITEMW selected{};
    selected.state = selected.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(view, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&selected));
    settle();
  }

  void choose(Window& window, MenuItem& item) override {
    const auto& shown = dynamic_cast<Win32Window&>(window);
    const UINT id = shown.menuId(item);
    const UINT state = GetMenuState(GetMenu(shown.hwnd()), id, MF_BYCOMMAND);
    if ((state & (MF_GRAYED | MF_DISABLED)) != 0) return;  // the menu sends nothing
    PostMessageW(shown.hwnd(), WM_COMMAND, id, 0);
    settle();
  }

  void place(Window& window, const Place& place) override {
    window.setOuterPlace(place);
    settle();
  }

  void maximise(Window& window) override { command(window, SC_MAXIMIZE); }
  void minimise(Window& window) override { command(window, SC_MINIMIZE); }
  void restore(Window& window) override { command(window, SC_RESTORE); }
  void close(Window& window) override { command(window, SC_CLOSE); }

  void settle() override {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) toolkit_.handleMessage(message);
  }

 private:
  void command(Window& window, WPARAM command) {
    PostMessageW(dynamic_cast<Win32Window&>(window).hwnd(), WM_SYSCOMMAND, command, 0);
    settle();
  }

  // Both messages lie ready when the first is handled: a list view waits for the second in it.
  void clickAt(HWND handle, POINT position) {
    if (letsMouseThrough(handle, position)) {
      MapWindowPoints(handle, GetParent(handle), &position, 1);
      handle = GetParent(handle);
    }
    const LPARAM at = MAKELPARAM(position.x, position.y);
    PostMessageW(handle, WM_LBUTTONDOWN, MK_LBUTTON, at);
    PostMessageW(handle, WM_LBUTTONUP, 0, at);
    settle();
  }

  // A window of this thread is about to become the active one. A modal box is answered when it has
  // come to rest.
  static LRESULT CALLBACK seeWindow(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && hands_ != nullptr) {
      const auto box = reinterpret_cast<HWND>(wParam);
      const HWND owner = GetWindow(box, GW_OWNER);
      const bool bars = owner != nullptr && IsWindowEnabled(owner) == 0;
      const bool isModal = bars || isOfClass(box, kMessageBoxClass);
      if (isModal && hands_->answered_ != box) {
        hands_->answered_ = box;
        PostMessageW(hands_->own_, kAnswer, wParam, 0);
      }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static LRESULT CALLBACK ownProcedure(HWND own, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kAnswer || hands_ == nullptr)
      return DefWindowProcW(own, message, wParam, lParam);
    hands_->answer(reinterpret_cast<HWND>(wParam));
    return 0;
  }

  // Reads a modal box and presses its OK button.
  void answer(HWND modal) {
    if (isOfClass(modal, kMessageBoxClass)) {
      if (seesMessage) seesMessage(fromWide(promptOf(modal)), fromWide(textOf(modal)));
      PostMessageW(modal, WM_COMMAND, IDOK, 0);
      return;
    }
    Window& box = *toolkit_.Forms().back();
    if (seesModalBox) seesModalBox(box);
    click(box.commandButton(u"cmdOK"));
  }

  static inline Win32Hands* hands_ = nullptr;  // a hook knows nothing but the thread

  WatchedToolkit toolkit_;
  HWND own_;
  HHOOK hook_ = nullptr;
  HWND answered_ = nullptr;
};

}  // namespace

std::unique_ptr<Hands> makeWin32Hands(const Collation& collation) {
  return std::make_unique<Win32Hands>(collation);
}

}  // namespace termvik
