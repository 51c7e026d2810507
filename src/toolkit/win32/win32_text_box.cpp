// SPDX-License-Identifier: MIT
#include "win32_text_box.h"

#include <algorithm>
#include <commctrl.h>

#include "toolkit/shared/shown_limits.h"
#include "toolkit/win32/win32_toolkit.h"
#include "win32_text.h"
#include "win32_window.h"

namespace termvik {

namespace {

// Of a line that is too long: it is laid out anew for each row that it is wrapped into.
constexpr std::size_t kPiece = 250;

constexpr WPARAM kCtrlA = 1;
constexpr WPARAM kCtrlC = 3;

Win32Widget::Look look(const ControlDesign& design) {
  const DWORD scrolls = design.scrolls ? WS_VSCROLL : 0;
  return {WC_EDITW, ES_MULTILINE | ES_READONLY | alignmentStyle(design.alignment) | scrolls,
          design.flat ? 0UL : WS_EX_CLIENTEDGE};
}

// A text as a box shows it whole, with what it had to add for that.
class ShownLines {
 public:
  std::wstring text;
  std::vector<std::size_t> added;  // positions in `text`

  explicit ShownLines(TextView from) {
    text.reserve(from.size());
    while (!from.empty()) {
      const TextView line = from.substr(0, from.find_first_of(u"\r\n"));
      addLine(line);
      from.remove_prefix(line.size());
      if (!from.empty()) from.remove_prefix(addBreak(from));
    }
  }

 private:
  void addLine(TextView line) {
    const std::size_t longest = line.size() > kLongestLine ? kPiece : kLongestLine;
    while (line.size() > longest) {
      const std::size_t cut = IS_LOW_SURROGATE(line[longest]) ? longest + 1 : longest;
      text += shownText(line.substr(0, cut));
      addBreak({});
      line.remove_prefix(cut);
    }
    text += shownText(line);
  }

  // Only CR LF breaks a line of a box, and `from` can begin with half of it or none. Gives how many
  // characters of `from` it stands for.
  std::size_t addBreak(TextView from) {
    const bool hasReturn = from.starts_with(u'\r');
    const bool hasFeed = from.substr(hasReturn ? 1 : 0).starts_with(u'\n');
    if (!hasReturn) added.push_back(text.size());
    if (!hasFeed) added.push_back(text.size() + 1);
    text += L"\r\n";
    return (hasReturn ? 1U : 0U) + (hasFeed ? 1U : 0U);
  }
};

}  // namespace

Win32TextBox::Win32TextBox(Win32Window& window, const ControlDesign& design)
    : Win32Control(window, look(design), design) {
  send(EM_SETLIMITTEXT, 0);  // none
  Win32TextBox::showText();
}

void Win32TextBox::showText() {
  ShownLines lines(text());
  added_ = std::move(lines.added);
  SetWindowTextW(handle(), lines.text.c_str());
}

LRESULT Win32TextBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS | DLGC_WANTCHARS;  // Tab, Enter and Esc are the window's
    case WM_CHAR:
      if (wParam == kCtrlA) send(EM_SETSEL, 0, -1);
      if (wParam == kCtrlC) copySelection();
      return 0;
    case WM_COPY:
      copySelection();
      return 0;
    default:
      return passOn(message, wParam, lParam);
  }
}

std::size_t Win32TextBox::textPositionOf(std::size_t shownPosition) const {
  const auto before = std::lower_bound(added_.begin(), added_.end(), shownPosition);
  return shownPosition - static_cast<std::size_t>(before - added_.begin());
}

// Copies the selected text as it is, not as it is shown.
void Win32TextBox::copySelection() const {
  DWORD start = 0;
  DWORD end = 0;
  send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  const std::size_t from = textPositionOf(start);
  const std::size_t to = textPositionOf(end);
  if (to <= from) return;
  const TextView selected = TextView(text()).substr(from, to - from);
  if (!window().toolkit().setClipboardText(selected)) MessageBeep(MB_ICONWARNING);
}

}  // namespace termvik
