// The word list and the article: fills the list from the chosen glossaries, moves the selection and
// shows the selected row's entry.
#include <algorithm>
#include <new>

#include "common/system/mathlib.h"
#include "lookup/frm_glossary.h"

namespace termvik {

std::int16_t frmGlossary::selectedGlossary() const {
  for (const std::int16_t index : {std::int16_t{0}, std::int16_t{1}}) {
    if (optGlossary_.Value(index)) return index;
  }
  return 2;
}

void frmGlossary::selectGlossary(std::int16_t Index) {
  if (Index >= 0 && Index <= 2) optGlossary_.setValue(Index, true);
}

void frmGlossary::fillWordList() {
  lstWords_.Clear();
  visitChosenGlossaries([this](std::int32_t first, std::int32_t last) {
    for (std::int32_t i = first; i <= last; ++i) addEntryWords(i);
  });
  if (chkShowDoublet_.Value() == 1) markDoublets();
  leaveRoom();
}

// Finds out in time whether the window system will have memory for the list: it cannot be told that
// there is none, and ends the program.
void frmGlossary::leaveRoom() const {
  constexpr std::size_t kOfRow = 256;
  constexpr std::size_t kEnough = 64U << 20U;
  const auto rows = static_cast<std::size_t>(lstWords_.ListCount());
  ::operator delete(::operator new(std::min(rows * kOfRow, kEnough)));
}

void frmGlossary::addEntryWords(std::int32_t entryIndex) {
  bool getFirst = true;
  TextView word;
  while (words_.gEntries(entryIndex).getGlossaryWord(words_.gWordType, getFirst, word)) {
    lstWords_.AddItem(word, entryIndex);
  }
}

void frmGlossary::showSelectedArticle() {
  const std::int32_t entry = lstWords_.ItemData(lstWords_.ListIndex());
  txtArticle_.setText(words_.gEntries(entry).getArticle(words_.gWordType));
}

void frmGlossary::lstWords_Click() {
  if (!listBusy_) showSelectedArticle();
}

// Selects row `first`, with the rows down to `last` in view as far as the list's height allows, and
// shows its article. Both are brought into the list's range.
void frmGlossary::moveInList(std::int32_t first, std::int32_t last) {
  const std::int32_t lastRow = lstWords_.ListCount() - 1;
  first = Mathlib::minOf(Mathlib::maxOf(0, first), lastRow);
  last = Mathlib::minOf(Mathlib::maxOf(0, last), lastRow);
  if (lstWords_.ListCount() == 0) {
    txtArticle_.setText({});
    return;
  }
  listBusy_ = true;
  if (last > first) lstWords_.setListIndex(last);  // scrolls the end of the range into view
  lstWords_.setListIndex(first);
  listBusy_ = false;
  showSelectedArticle();
}

// The tail of every command that has changed what the list holds.
void frmGlossary::placeSelection() {
  if (words_.collation().isEmpty(txtSearch_.text())) {
    moveInList(0, 0);
  } else {
    txtSearch_Change();
  }
}

void frmGlossary::optGlossary_Click(std::int16_t) {
  if (!formLoaded_) return;
  if (optSearch_.Value(0)) {
    fillWordList();
    placeSelection();
  } else {
    cmdSearchAgain_Click();
  }
}

}  // namespace termvik
