// The commands that change what the list is made of: search mode, language, doublet marks, reading
// the files again; the search text stays in its box through all of them. And the doublet report.
#include "lookup/doublets.h"
#include "lookup/frm_glossary.h"

namespace termvik {

namespace {

constexpr TextView kReportIsThere =
    u"Dubbletterna finns nu på klippbordet! \r\n"
    u"Gör ctrl-V i Word för att kopiera dem till ett dokument!";
constexpr TextView kNoClipboard = u"Could not open the clipboard";

}  // namespace

void frmGlossary::optSearch_Click(std::int16_t Index) {
  if (Index == 1) {
    cmdSearchAgain_Click();
    cmdSearchAgain_.setEnabled(true);
  } else if (!searchOptionLocked_) {
    languageChanged();
    cmdSearchAgain_.setEnabled(false);
  }
}

void frmGlossary::chkShowDoublet_Click() { languageChanged(); }

void frmGlossary::mnuEnglish_Click() { changeLanguage(u"E"); }
void frmGlossary::mnuSwedish_Click() { changeLanguage(u"S"); }
void frmGlossary::mnuGerman_Click() { changeLanguage(u"D"); }
void frmGlossary::mnuFrance_Click() { changeLanguage(u"F"); }

void frmGlossary::changeLanguage(TextView wordType) {
  words_.gWordType = wordType;
  languageChanged();
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
}

void frmGlossary::mnuDoubletList_Click() {
  const bool isThere = toolkit_.setClipboardText(doubletReport(lstWords_.rows(), words_));
  toolkit_.MsgBox(isThere ? kReportIsThere : kNoClipboard);
}

}  // namespace termvik
