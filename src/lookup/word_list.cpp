// SPDX-License-Identifier: MIT
// The word list and the article: fills the list with the words of the chosen glossaries or with the
// hits of a search, moves the selection and shows the selected row's entry.
#include <algorithm>
#include <new>

#include "common/system/mathlib.h"
#include "lookup/doublets.h"
#include "lookup/frm_glossary.h"
#include "lookup/search_words.h"
#include "spoken.h"

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

ChosenGlossaries frmGlossary::chosenGlossaries() const {
  const bool both = optGlossary_.Value(2);
  return {.graphical = both || optGlossary_.Value(0), .tools = both || optGlossary_.Value(1)};
}

WordVisitor frmGlossary::addRow() {
  return [this](TextView word, std::int32_t entry) { lstWords_.AddItem(word, entry); };
}

void frmGlossary::fillWordList() {
  holdsHits_ = false;
  lstWords_.Clear();
  visitWords(words_, chosenGlossaries(), addRow());
  if (chkShowDoublet_.Value() == 1) {
    markDoublets(lstWords_.rows(),
                 [this](std::int32_t row, TextView text) { lstWords_.setList(row, text); });
  }
  leaveRoom();
}

void frmGlossary::cmdSearchAgain_Click() {
  searchAgain();
  sayChange({});
}

void frmGlossary::searchAgain() {
  const Text searchText = txtSearch_.text();
  const std::vector<TextView> terms = splitSearchWords(words_.collation(), searchText);
  if (terms.empty()) return;
  holdsHits_ = true;
  lstWords_.Clear();
  txtArticle_.setText({});
  visitHits(words_, chosenGlossaries(), terms, addRow());
  leaveRoom();
  moveInList(0, 0);
}

// Finds out in time whether the window system will have memory for the list: it cannot be told that
// there is none, and ends the program.
void frmGlossary::leaveRoom() const {
  constexpr std::size_t kOfRow = 256;
  constexpr std::size_t kEnough = 64U << 20U;
  const auto rows = static_cast<std::size_t>(lstWords_.ListCount());
  ::operator delete(::operator new(std::min(rows * kOfRow, kEnough)));
}

void frmGlossary::showSelectedArticle() {
  const std::int32_t entry = lstWords_.ItemData(lstWords_.ListIndex());
  txtArticle_.setText(words_.gEntries(entry).getArticle(words_.gWordType));
}

void frmGlossary::lstWords_Click() {
  if (listBusy_) return;
  showSelectedArticle();
  sayArticle();
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
    lookUpSearchText();
  }
}

void frmGlossary::optGlossary_Click(std::int16_t Index) {
  if (!formLoaded_) return;
  if (optSearch_.Value(0)) {
    fillWordList();
    placeSelection();
  } else {
    searchAgain();
  }
  sayChange(spoken::chosen(captionOf(u"optGlossary", Index)));
}

}  // namespace termvik
