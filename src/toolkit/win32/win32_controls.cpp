// SPDX-License-Identifier: MIT
#include "win32_controls.h"

#include <commctrl.h>

#include "win32_text.h"
#include "win32_window.h"

namespace termvik {

namespace {

bool isDark(COLORREF colour) {
  constexpr int kHalf = 128;
  // The eye sees green best and blue worst.
  return (2 * GetRValue(colour) + 5 * GetGValue(colour) + GetBValue(colour)) / 8 < kHalf;
}

struct Colours {
  int text;  // COLOR_...
  int back;
};

Colours coloursOf(const ControlDesign& design) {
  if (design.backColour == Colour::ToolTipBackground) return {COLOR_INFOTEXT, COLOR_INFOBK};
  const bool isBox = design.kind == ControlKind::EditBox || design.kind == ControlKind::TextBox;
  if (isBox && design.backColour == Colour::Default) return {COLOR_WINDOWTEXT, COLOR_WINDOW};
  return {COLOR_BTNTEXT, COLOR_BTNFACE};
}

Win32Widget::Look decorationLook(const ControlDesign& design) {
  switch (design.kind) {
    case ControlKind::Frame:
      // Transparent: the window paints what the frame holds, the frame only its line and caption.
      return {WC_BUTTONW, BS_GROUPBOX, WS_EX_TRANSPARENT};
    case ControlKind::Line:
      return {WC_STATICW, SS_ETCHEDHORZ};
    default:
      return {WC_STATICW, SS_NOPREFIX | alignmentStyle(design.alignment)};
  }
}

}  // namespace

Win32Widget::Win32Widget(Win32Window& window, const ControlDesign& design, const Look& look)
    : window_(window),
      handle_(CreateWindowExW(look.extendedStyle, look.className, wide(design.caption).c_str(),
                              look.style | window.commonStyle(design), 0, 0, 0, 0, window.hwnd(),
                              window.nextId(), GetModuleHandleW(nullptr), nullptr)) {
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  kind_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure)));
}

LRESULT CALLBACK Win32Widget::procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = reinterpret_cast<Win32Widget*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  return self->onMessage(message, wParam, lParam);
}

LRESULT Win32Widget::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  return passOn(message, wParam, lParam);
}

LRESULT Win32Widget::passOn(UINT message, WPARAM wParam, LPARAM lParam) const {
  return CallWindowProcW(kind_, handle_, message, wParam, lParam);
}

LRESULT Win32Widget::send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendMessageW(handle_, message, wParam, lParam);
}

void Win32Widget::showAt(Control& control) const { window_.placeControl(control, handle_); }

Win32OptionButton::Win32OptionButton(Win32Window& window, const ControlDesign& design,
                                     OptionGroup& group)
    : Win32Control(window, {WC_BUTTONW, BS_AUTORADIOBUTTON}, design, group) {
  send(BM_SETDONTCLICK, TRUE);  // else the focus alone would choose the option
}

void Win32OptionButton::reports(WORD code) {
  if (code == BN_CLICKED) userChooses();
}

// Checking and clearing an option also makes it a tab stop and none; a group of which no option is
// on would have no tab stop at all.
void Win32OptionButton::showValue() {
  send(BM_SETCHECK, Value() ? BST_CHECKED : BST_UNCHECKED);
  constexpr LONG_PTR kStop = WS_TABSTOP;
  const LONG_PTR style = GetWindowLongPtrW(handle(), GWL_STYLE) & ~kStop;
  SetWindowLongPtrW(handle(), GWL_STYLE, style | (window().isTabStop(*this) ? kStop : 0));
}

Win32CheckBox::Win32CheckBox(Win32Window& window, const ControlDesign& design)
    : Win32Control(window, {WC_BUTTONW, BS_AUTOCHECKBOX}, design) {
  send(BM_SETCHECK, Value() == 1 ? BST_CHECKED : BST_UNCHECKED);
}

void Win32CheckBox::reports(WORD code) {
  if (code == BN_CLICKED) userSets(send(BM_GETCHECK) == BST_CHECKED);
}

Win32CommandButton::Win32CommandButton(Win32Window& window, const ControlDesign& design)
    : Win32Control(
          window,
          {WC_BUTTONW, static_cast<DWORD>(design.isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON)},
          design) {
  EnableWindow(handle(), Enabled());
}

void Win32CommandButton::reports(WORD code) {
  if (code == BN_CLICKED) userPresses();
}

// A button that is switched off hands the focus on: it could do nothing with a key.
void Win32CommandButton::showEnabled() {
  if (!Enabled() && GetFocus() == handle()) {
    SetFocus(GetNextDlgTabItem(window().hwnd(), handle(), FALSE));
  }
  EnableWindow(handle(), Enabled());
}

std::unique_ptr<Control> makeWin32Decoration(Win32Window& window, const ControlDesign& design) {
  return std::make_unique<Win32Control<Control>>(window, decorationLook(design), design);
}

DWORD alignmentStyle(Alignment alignment) {
  static_assert(SS_RIGHT == ES_RIGHT && SS_CENTER == ES_CENTER);
  switch (alignment) {
    case Alignment::Right:
      return SS_RIGHT;
    case Alignment::Centre:
      return SS_CENTER;
    default:
      return SS_LEFT;
  }
}

HBRUSH chooseColours(HDC context, const ControlDesign& design) {
  const Colours colours = coloursOf(design);
  const COLORREF back = GetSysColor(colours.back);
  // Black where black can be read; on a dark desktop the desktop's own text colour.
  const bool black = design.textColour == Colour::Black && !isDark(back);
  SetTextColor(context, black ? RGB(0, 0, 0) : GetSysColor(colours.text));
  SetBkColor(context, back);
  return GetSysColorBrush(colours.back);
}

}  // namespace termvik
