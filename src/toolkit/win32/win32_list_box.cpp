// SPDX-License-Identifier: MIT
#include "win32_list_box.h"

#include <utility>

#include "toolkit/shared/shown_limits.h"
#include "win32_text.h"

namespace termvik {

namespace {

constexpr UINT kKeepSelection = WM_APP;  // to the list view itself

constexpr DWORD kStyle =
    LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS;
// A row that is wider than the list unfolds as a tip under the mouse.
constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
constexpr UINT kSelected = LVIS_SELECTED | LVIS_FOCUSED;

// Whether a screen reader has told the system that it is there. Others than readers look at windows
// by automation too, and want the texts as they are.
bool aReaderReads() {
  BOOL reads = FALSE;
  SystemParametersInfoW(SPI_GETSCREENREADER, 0, &reads, 0);
  return reads != FALSE;
}

}  // namespace

Win32ListBox::Win32ListBox(Win32Window& window, const ControlDesign& design,
                           const Collation& collation)
    : Win32Control(window, {WC_LISTVIEWW, kStyle, WS_EX_CLIENTEDGE}, design, collation) {
  send(LVM_SETEXTENDEDLISTVIEWSTYLE, kExtendedStyle, kExtendedStyle);
  LVCOLUMNW column{};
  send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  fitColumn();
}

// Rows come by the hundred thousand: the view hears of them once, before it handles whatever
// message comes next.
void Win32ListBox::showRows() {
  if (stale_) return;
  stale_ = true;
  InvalidateRect(handle(), nullptr, FALSE);  // at the latest its painting
}

LRESULT Win32ListBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (stale_) bringUpToDate();
  if (message == kKeepSelection) {
    keepSelection();
    return 0;
  }
  const bool paintedBefore = std::exchange(painting_, message == WM_PAINT);
  const LRESULT result = passOn(message, wParam, lParam);
  painting_ = paintedBefore;
  if (message == WM_SIZE) fitColumn();
  return result;
}

void Win32ListBox::bringUpToDate() {
  stale_ = false;
  selecting_ = true;
  LVITEMW none{};
  none.stateMask = kSelected;
  send(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&none));
  send(LVM_SETITEMCOUNT, static_cast<WPARAM>(rows().count()), LVSICF_NOSCROLL);
  selecting_ = false;
  if (ListIndex() >= 0) selectQuietly();
  if (rows().count() > 0) {
    send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(ListIndex() >= 0 ? ListIndex() : 0), FALSE);
  }
}

void Win32ListBox::selectQuietly() {
  selecting_ = true;
  LVITEMW selected{};
  selected.state = kSelected;
  selected.stateMask = kSelected;
  send(LVM_SETITEMSTATE, static_cast<WPARAM>(ListIndex()), reinterpret_cast<LPARAM>(&selected));
  selecting_ = false;
}

void Win32ListBox::showSelection() {
  selectQuietly();
  send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(ListIndex()), FALSE);
}

// A row stays selected wherever the user clicks and whatever is held down meanwhile.
void Win32ListBox::keepSelection() {
  const LRESULT selected = send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
  if (selected < 0 && ListIndex() >= 0) selectQuietly();
}

// The one column is as wide as the list: longer texts end at its edge.
void Win32ListBox::fitColumn() const {
  RECT client;
  GetClientRect(handle(), &client);
  send(LVM_SETCOLUMNWIDTH, 0, widthOf(client));
}

LRESULT Win32ListBox::reports(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      giveText(reinterpret_cast<NMLVDISPINFOW&>(header).item);
      return 0;
    case LVN_ODFINDITEMW:
      return findRow(reinterpret_cast<NMLVFINDITEMW&>(header));
    case NM_CUSTOMDRAW:
      return colourRow(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    case LVN_ITEMCHANGED:
      if (!selecting_) selectionChanges(reinterpret_cast<NMLISTVIEW&>(header));
      return 0;
    default:
      return 0;
  }
}

void Win32ListBox::selectionChanges(const NMLISTVIEW& change) {
  if ((change.uChanged & LVIF_STATE) == 0) return;
  const bool was = (change.uOldState & LVIS_SELECTED) != 0;
  const bool is = (change.uNewState & LVIS_SELECTED) != 0;
  if (is && change.iItem >= 0) userSelects(change.iItem);
  // Most often because another row is about to be selected; only afterwards is it known.
  if (was && !is) PostMessageW(handle(), kKeepSelection, 0, 0);
}

// The selected row always stands out: the user looks at it while typing in the search box, and a
// view without the focus would show it in a grey that is hard to tell from the background.
LRESULT Win32ListBox::colourRow(NMLVCUSTOMDRAW& drawn) const {
  if (drawn.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  const bool isRow = drawn.nmcd.dwDrawStage == CDDS_ITEMPREPAINT;
  if (isRow && static_cast<std::int32_t>(drawn.nmcd.dwItemSpec) == ListIndex()) {
    drawn.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);  // with it, colours do not count
    drawn.clrText = GetSysColor(COLOR_HIGHLIGHTTEXT);
    drawn.clrTextBk = GetSysColor(COLOR_HIGHLIGHT);
  }
  return CDRF_DODEFAULT;
}

// What is painted, or to a reader what the row is called.
Text Win32ListBox::textOf(std::int32_t row) const {
  if (row < 0 || row >= rows().count()) return {};
  if (!painting_ && aReaderReads()) return rowName(row);
  return Text(rows().text(row).substr(0, kMostShownOfRow));
}

void Win32ListBox::giveText(LVITEMW& item) {
  if ((item.mask & LVIF_TEXT) == 0) return;
  std::wstring& given = given_[nextGiven_];
  nextGiven_ = (nextGiven_ + 1) % given_.size();
  given = shownText(textOf(item.iItem));
  item.pszText = given.data();
}

// The row that the letters typed in the list lead to; -1 for none.
LRESULT Win32ListBox::findRow(const NMLVFINDITEMW& wanted) const {
  if ((wanted.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0) return -1;
  const Text beginning = fromWide(wanted.lvfi.psz);
  for (const std::int32_t from : {wanted.iStart, 0}) {
    if (from >= rows().count()) continue;
    const SortedRows::Fit fit = rows().bestFit(beginning, from);
    if (fit.length == beginning.size()) return fit.row;
  }
  return -1;
}

}  // namespace termvik
