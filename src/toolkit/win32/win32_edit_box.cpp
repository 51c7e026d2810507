// SPDX-License-Identifier: MIT
#include "win32_edit_box.h"

#include <commctrl.h>

#include "win32_text.h"

namespace termvik {

namespace {

// Control characters that come as WM_CHAR: Ctrl with the letter of that number.
constexpr char16_t kCtrlA = 1;
constexpr TextView kKnownToBoxes = u"\x03\x08\x16\x18\x1A";  // copy, delete, paste, cut, undo
constexpr char16_t kCtrlBackSpace = 0x7F;

std::int16_t keyCodeOf(WPARAM key) {
  static_assert(keys::kUp == VK_UP && keys::kDown == VK_DOWN && keys::kEnter == VK_RETURN &&
                keys::kPageUp == VK_PRIOR && keys::kPageDown == VK_NEXT);
  return static_cast<std::int16_t>(key);  // the program's key codes are those of Windows
}

// Where the last word before `end` begins; words are parted by blanks.
std::size_t startOfWord(TextView text, std::size_t end) {
  const std::size_t last = text.substr(0, end).find_last_not_of(u' ');
  if (last == TextView::npos) return 0;
  return text.substr(0, last).find_last_of(u' ') + 1;  // 0 where there is none
}

// True for a key, or its character, that another dialog would use to go on or to close.
bool isKeyButTab(LPARAM message) {
  const auto* seen = reinterpret_cast<const MSG*>(message);
  return seen != nullptr && (seen->message == WM_KEYDOWN || seen->message == WM_CHAR) &&
         seen->wParam != VK_TAB;
}

}  // namespace

Win32EditBox::Win32EditBox(Win32Window& window, const ControlDesign& design)
    : Win32Control(window,
                   {WC_EDITW, ES_AUTOHSCROLL | alignmentStyle(design.alignment), WS_EX_CLIENTEDGE},
                   design) {
  send(EM_SETLIMITTEXT, 0);  // none; a box's own limit is 32,767
}

Text Win32EditBox::text() const {
  const LRESULT length = send(WM_GETTEXTLENGTH);
  Text text(static_cast<std::size_t>(length) + 1, u'\0');
  const LRESULT read = send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(read));
  return text;
}

Win32EditBox::Selection Win32EditBox::selection() const {
  Selection selection;
  send(EM_GETSEL, reinterpret_cast<WPARAM>(&selection.start),
       reinterpret_cast<LPARAM>(&selection.end));
  return selection;
}

std::int32_t Win32EditBox::SelStart() const { return static_cast<std::int32_t>(selection().start); }

std::int32_t Win32EditBox::SelLength() const {
  return static_cast<std::int32_t>(selection().end - selection().start);
}

void Win32EditBox::setSelStart(std::int32_t start) {
  send(EM_SETSEL, static_cast<WPARAM>(start), start);
}

void Win32EditBox::setSelLength(std::int32_t length) {
  const std::int32_t start = SelStart();
  send(EM_SETSEL, static_cast<WPARAM>(start), start + length);
}

void Win32EditBox::reports(WORD code) {
  if (code == EN_CHANGE) userEdits();
}

LRESULT Win32EditBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:  // not told of the dialog, the box does not hand Enter to a button either
      return DLGC_HASSETSEL | DLGC_WANTARROWS | DLGC_WANTCHARS |
             (isKeyButTab(lParam) ? DLGC_WANTMESSAGE : 0);
    case WM_KEYDOWN:
      keyKept_ = !userPressesKey(keyCodeOf(wParam));
      if (keyKept_) return 0;
      if (wParam == VK_BACK && GetKeyState(VK_CONTROL) < 0) deleteWord();
      break;
    case WM_KEYUP:
      keyKept_ = false;
      break;
    case WM_CHAR:
      if (keyKept_ || !takesCharacter(static_cast<char16_t>(wParam))) return 0;
      break;
    case WM_LBUTTONUP: {
      const bool isPressed = GetCapture() == handle();  // not when the press was elsewhere
      const LRESULT result = passOn(message, wParam, lParam);
      RECT place;
      GetClientRect(handle(), &place);
      const POINT at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
      if (isPressed && PtInRect(&place, at) != 0) userClicks();
      return result;
    }
    default:
      break;
  }
  return passOn(message, wParam, lParam);
}

// False for a character that goes no further: kept by the program, or one that a box answers with a
// beep or a little square.
bool Win32EditBox::takesCharacter(char16_t character) {
  if (!userGivesCharacter(character)) return false;
  if (character == kCtrlA) send(EM_SETSEL, 0, -1);
  const bool isControl = character < u' ' || character == kCtrlBackSpace;
  return !isControl || kKnownToBoxes.find(character) != TextView::npos;
}

// The word before the caret with the blanks after it, or what is selected.
void Win32EditBox::deleteWord() {
  Selection part = selection();
  if (part.start == part.end) part.start = static_cast<DWORD>(startOfWord(text(), part.end));
  if (part.start == part.end) return;
  send(EM_SETSEL, part.start, static_cast<LPARAM>(part.end));
  send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
}

}  // namespace termvik
