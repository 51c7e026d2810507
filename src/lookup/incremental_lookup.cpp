// SPDX-License-Identifier: MIT
// The search box as the keyboard front of the list: each change of its text selects the row that
// fits best, and the arrow and page keys move the selection.
#include "lookup/frm_glossary.h"
#include "lookup/look_up.h"
#include "spoken.h"

namespace termvik {

namespace {

constexpr std::int32_t kPageRows = 15;  // whatever the height of the list

}  // namespace

// Whether the selected row begins with the whole text.
bool frmGlossary::lookUpSearchText() {
  if (lstWords_.ListCount() == 0 || listBusy_) return false;
  const FoundRows found = lookUp(lstWords_.rows(), txtSearch_.text());
  moveInList(found.top, found.bottom);
  return found.whole;
}

// A person who listens is told that the row does not fit; among hits it seldom does.
void frmGlossary::txtSearch_Change() {
  const bool fits = lookUpSearchText() || txtSearch_.text().empty();
  const bool isNews = !fits && lstWords_.ListCount() > 0 && optSearch_.Value(0);
  sayRow(isNews ? spoken::kNoMatch : TextView());
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
      sayRow();
      keyCode = 0;
      break;
    case keys::kDown:
      moveInList(selected + 1, 0);
      sayRow();
      keyCode = 0;
      break;
    case keys::kEnter:
      if (optSearch_.Value(1)) searchAgain();
      break;
    case keys::kPageDown:
      moveInList(selected + kPageRows, 0);
      sayRow();
      break;
    case keys::kPageUp:
      moveInList(selected - kPageRows, 0);
      sayRow();
      break;
    default:
      break;
  }
}

void frmGlossary::txtSearch_KeyPress(std::int16_t& character) {
  if (character != keys::kEnter) return;
  character = 0;
  if (optSearch_.Value(1)) {
    lookUpSearchText();
    sayRow(listSize());
  } else {
    txtSearch_Change();
  }
}

}  // namespace termvik
