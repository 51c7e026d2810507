#include "toolkit/win32/win32_search_box.h"

#include <commctrl.h>

#include "toolkit/win32/win32_text.h"

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

DWORD style(const ControlDesign& design) {
  return ES_AUTOHSCROLL | alignmentStyle(design.alignment) | (design.locked ? ES_READONLY : 0U);
}

// True for a key, or its character, that another dialog would use to go on or to close.
bool isKeyButTab(LPARAM message) {
  const auto* seen = reinterpret_cast<const MSG*>(message);
  return seen != nullptr && (seen->message == WM_KEYDOWN || seen->message == WM_CHAR) &&
         seen->wParam != VK_TAB;
}

}  // namespace

Win32SearchBox::Win32SearchBox(Win32Window& window, const ControlDesign& design)
    : Win32Control(window, {WC_EDITW, style(design), WS_EX_CLIENTEDGE}, design) {
  send(EM_SETLIMITTEXT, 0);  // none; a box's own limit is 32,767
}

Text Win32SearchBox::text() const {
  const LRESULT length = send(WM_GETTEXTLENGTH);
  Text text(static_cast<std::size_t>(length) + 1, u'\0');
  const LRESULT read = send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(read));
  return text;
}

void Win32SearchBox::setText(TextView text) {
  assigning_ = true;
  SetWindowTextW(shown(), shownText(text).c_str());
  assigning_ = false;
}

Win32SearchBox::Selection Win32SearchBox::selection() const {
  Selection selection;
  send(EM_GETSEL, reinterpret_cast<WPARAM>(&selection.start),
       reinterpret_cast<LPARAM>(&selection.end));
  return selection;
}

std::int32_t Win32SearchBox::SelStart() const {
  return static_cast<std::int32_t>(selection().start);
}

std::int32_t Win32SearchBox::SelLength() const {
  return static_cast<std::int32_t>(selection().end - selection().start);
}

void Win32SearchBox::setSelStart(std::int32_t start) {
  send(EM_SETSEL, static_cast<WPARAM>(start), start);
}

void Win32SearchBox::setSelLength(std::int32_t length) {
  const std::int32_t start = SelStart();
  send(EM_SETSEL, static_cast<WPARAM>(start), start + length);
}

void Win32SearchBox::reports(WORD code) {
  if (code == EN_CHANGE && !assigning_) userEdits();
}

LRESULT Win32SearchBox::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:  // not told of the dialog, the box does not hand Enter to a button either
      return DLGC_HASSETSEL | DLGC_WANTARROWS | DLGC_WANTCHARS |
             (isKeyButTab(lParam) ? DLGC_WANTMESSAGE : 0);
    case WM_KEYDOWN:
      keyKept_ = !userPressesKey(keyCodeOf(wParam));
      if (keyKept_) return 0;
      break;
    case WM_KEYUP:
      keyKept_ = false;
      break;
    case WM_CHAR:
      if (keyKept_ || !takesCharacter(static_cast<char16_t>(wParam))) return 0;
      break;
    case WM_LBUTTONUP: {
      const LRESULT result = passOn(message, wParam, lParam);
      RECT place;
      GetClientRect(shown(), &place);
      const POINT at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
      if (PtInRect(&place, at) != 0) userClicks();
      return result;
    }
    default:
      break;
  }
  return passOn(message, wParam, lParam);
}

// False for a character that goes no further: kept by the program, or one that a box answers with a
// beep or a little square.
bool Win32SearchBox::takesCharacter(char16_t character) {
  if (!userGivesCharacter(character)) return false;
  if (character == kCtrlA) send(EM_SETSEL, 0, -1);
  const bool isControl = character < u' ' || character == kCtrlBackSpace;
  return !isControl || kKnownToBoxes.find(character) != TextView::npos;
}

}  // namespace termvik
