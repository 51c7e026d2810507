// The search box as the keyboard front of the list: each change of its text selects the row that
// fits best, and the arrow and page keys move the selection.
#include "lookup/frm_glossary.h"
#include "lookup/look_up.h"

namespace termvik {

namespace {

constexpr std::int32_t kPageRows = 15;  // whatever the height of the list

}  // namespace

void frmGlossary::txtSearch_Change() {
  if (lstWords_.ListCount() == 0 || listBusy_) return;
  const FoundRows found = lookUp(lstWords_.rows(), txtSearch_.text());
  moveInList(found.top, found.bottom);
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
