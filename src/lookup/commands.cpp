// SPDX-License-Identifier: MIT
// The commands that change what the list is made of: search mode, language, doublet marks, reading
// the files again; the search text stays in its box through all of them. And the doublet report.
#include "lookup/doublets.h"
#include "lookup/frm_glossary.h"
#include "spoken.h"

namespace termvik {

namespace {

constexpr TextView kReportIsThere =
    u"Dubbletterna finns nu på klippbordet! \r\n"
    u"Gör ctrl-V i Word för att kopiera dem till ett dokument!";
constexpr TextView kNoClipboard = u"Could not open the clipboard";

}  // namespace

void frmGlossary::optSearch_Click(std::int16_t Index) {
  if (searchOptionLocked_) return;
  if (Index == 1) {
    searchAgain();
    cmdSearchAgain_.setEnabled(true);
  } else {
    languageChanged();
    cmdSearchAgain_.setEnabled(false);
  }
  sayChange(spoken::chosen(captionOf(u"optSearch", Index)));
}

void frmGlossary::chkShowDoublet_Click() {
  languageChanged();
  sayChange(spoken::ticked(chkShowDoublet_.design().caption, chkShowDoublet_.Value() == 1));
}

void frmGlossary::mnuEnglish_Click() { changeLanguage(u"E", u"mnuEnglish"); }
void frmGlossary::mnuSwedish_Click() { changeLanguage(u"S", u"mnuSwedish"); }
void frmGlossary::mnuGerman_Click() { changeLanguage(u"D", u"mnuGerman"); }
void frmGlossary::mnuFrance_Click() { changeLanguage(u"F", u"mnuFrance"); }

void frmGlossary::changeLanguage(TextView wordType, TextView menuItem) {
  words_.gWordType = wordType;
  languageChanged();
  sayRow(spoken::sentences(window_->menuItem(menuItem).design().caption, listSize()));
}

// Leaves full search, without the step that switches cmdSearchAgain off, and rebuilds the list.
void frmGlossary::languageChanged() {
  if (!optSearch_.Value(0)) {
    searchOptionLocked_ = true;
    optSearch_.setValue(0, true);
    searchOptionLocked_ = false;
  }
  fillWordList();
  placeSelection();
}

void frmGlossary::mnuReRead_Click() {
  words_.clearGlossaries();
  lstWords_.Clear();
  words_.readGlossaries();
  fillWordList();
  placeSelection();
  sayRow(listSize());
}

void frmGlossary::mnuDoubletList_Click() {
  const bool isThere = toolkit_.setClipboardText(doubletReport(lstWords_.rows(), words_));
  toolkit_.MsgBox(isThere ? kReportIsThere : kNoClipboard);
}

}  // namespace termvik
