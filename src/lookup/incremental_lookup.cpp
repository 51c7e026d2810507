// The search box as the keyboard front of the list: each change of its text selects the row that
// fits best, and the arrow and page keys move the selection.
#include <algorithm>

#include "lookup/frm_glossary.h"

namespace termvik {

namespace {

constexpr std::int32_t kPageRows = 15;  // whatever the height of the list

// How many characters `a` and `b` have in common at their beginning.
std::size_t commonLength(TextView a, TextView b) {
  const auto parted = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  return static_cast<std::size_t>(parted.first - a.begin());
}

}  // namespace

// Goes through the leading parts of the search text from the shortest on, each from the row where
// the one before ended. `top` becomes the first row that begins with the longest part that any row
// begins with, and `bottom` the end of the run of rows that begin with the whole text.
void frmGlossary::txtSearch_Change() {
  if (lstWords_.ListCount() == 0 || listBusy_) return;
  const Text searchText = txtSearch_.text();
  const SortedRows& rows = lstWords_.rows();
  std::int32_t top = 0;
  std::int32_t bottom = 0;
  for (std::size_t p = 1; p <= searchText.size(); ++p) {
    const SortedRows::Walk scan = rows.findPrefix(TextView(searchText).substr(0, p), top);
    if (!scan.fits) break;  // a row past the text, or the end of the list: longer parts fit no row
    top = scan.row;
    // The same characters fit at once: a long text costs one comparison, not one a character.
    p = std::max(p, commonLength(rows.text(top), searchText));
    if (p == searchText.size()) bottom = rows.endOfRun(searchText, top);
  }
  moveInList(top, bottom);
}

void frmGlossary::txtSearch_Click() {
  txtSearch_.setSelStart(0);
  txtSearch_.setSelLength(static_cast<std::int32_t>(txtSearch_.text().size()));
}

void frmGlossary::txtSearch_KeyDown(std::int16_t& keyCode) {
  const std::int32_t selected = lstWords_.ListIndex();
  switch (keyCode) {
    case keys::kUp:
      moveInList(selected - 1, 0);
      keyCode = 0;
      break;
    case keys::kDown:
      moveInList(selected + 1, 0);
      keyCode = 0;
      break;
    case keys::kEnter:
      if (optSearch_.Value(1)) cmdSearchAgain_Click();
      break;
    case keys::kPageDown:
      moveInList(selected + kPageRows, 0);
      break;
    case keys::kPageUp:
      moveInList(selected - kPageRows, 0);
      break;
    default:
      break;
  }
}

void frmGlossary::txtSearch_KeyPress(std::int16_t& character) {
  if (character != keys::kEnter) return;
  character = 0;
  txtSearch_Change();
}

}  // namespace termvik
