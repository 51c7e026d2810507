// The commands that change what the list is made of: search mode, language, doublet marks, reading
// the files again. The search text stays in its box through all of them.
#include "lookup/frm_glossary.h"

namespace termvik {

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

}  // namespace termvik
