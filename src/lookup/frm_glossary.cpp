// SPDX-License-Identifier: MIT
#include "lookup/frm_glossary.h"

#include <new>

#include "common/system/mathlib.h"
#include "common/system/numbers.h"
#include "dialogs/frm_about.h"
#include "lookup/frm_glossary_design.h"
#include "spoken.h"

namespace termvik {

namespace {

constexpr TextView kNotEnoughMemory = u"Termvik does not have enough memory for these glossaries";

}  // namespace

frmGlossary::frmGlossary(const Surroundings& surroundings)
    : toolkit_(surroundings.toolkit),
      app_(surroundings.app),
      words_(surroundings.words),
      settings_(surroundings.settings),
      window_(toolkit_.createWindow(frmGlossaryDesign())),
      txtSearch_(window_->editBox(u"txtSearch")),
      lstWords_(window_->listBox(u"lstWords")),
      txtArticle_(window_->textBox(u"txtArticle")),
      optGlossary_(window_->optionGroup(u"optGlossary")),
      picLogo_(window_->control(u"picLogo")),
      lblInternet_(window_->control(u"lblInternet")),
      optSearch_(window_->optionGroup(u"optSearch")),
      cmdSearchAgain_(window_->commandButton(u"cmdSearchAgain")),
      chkShowDoublet_(window_->checkBox(u"chkShowDoublet")) {
  lstWords_.RowName = spoken::rowName;
  connectEvents();
}

// Calls a handler of the outermost event. A handler that it leads to leaves the care to it, as it
// may still be at work on what would be let go.
template <class Act>
void frmGlossary::guard(Act act) {
  if (guarded_) {
    act();
    return;
  }
  guarded_ = true;
  try {
    act();
    guarded_ = false;
  } catch (const std::bad_alloc&) {
    runOutOfMemory();
  }
}

template <class... Arguments>
auto frmGlossary::handler(void (frmGlossary::*handle)(Arguments...)) {
  return [this, handle](Arguments... arguments) { guard([&] { (this->*handle)(arguments...); }); };
}

void frmGlossary::connectEvents() {
  window_->Resize = handler(&frmGlossary::Form_Resize);
  window_->QueryUnload = handler(&frmGlossary::Form_QueryUnload);
  lstWords_.Click = handler(&frmGlossary::lstWords_Click);
  optGlossary_.Click = handler(&frmGlossary::optGlossary_Click);
  txtSearch_.Change = handler(&frmGlossary::txtSearch_Change);
  txtSearch_.Click = handler(&frmGlossary::txtSearch_Click);
  txtSearch_.KeyDown = handler(&frmGlossary::txtSearch_KeyDown);
  txtSearch_.KeyPress = handler(&frmGlossary::txtSearch_KeyPress);
  cmdSearchAgain_.Click = handler(&frmGlossary::cmdSearchAgain_Click);
  optSearch_.Click = handler(&frmGlossary::optSearch_Click);
  chkShowDoublet_.Click = handler(&frmGlossary::chkShowDoublet_Click);
  window_->menuItem(u"mnuEnglish").Click = handler(&frmGlossary::mnuEnglish_Click);
  window_->menuItem(u"mnuSwedish").Click = handler(&frmGlossary::mnuSwedish_Click);
  window_->menuItem(u"mnuGerman").Click = handler(&frmGlossary::mnuGerman_Click);
  window_->menuItem(u"mnuFrance").Click = handler(&frmGlossary::mnuFrance_Click);
  window_->menuItem(u"mnuAbout").Click = handler(&frmGlossary::mnuAbout_Click);
  window_->menuItem(u"mnuReRead").Click = handler(&frmGlossary::mnuReRead_Click);
  window_->menuItem(u"mnuShowGlossVersions").Click =
      handler(&frmGlossary::mnuShowGlossVersions_Click);
  window_->menuItem(u"mnuCreateWordList").Click = handler(&frmGlossary::mnuCreateWordList_Click);
  window_->menuItem(u"mnuDoubletList").Click = handler(&frmGlossary::mnuDoubletList_Click);
}

void frmGlossary::Form_Load() {
  guard([this] {
    restoreSettings();
    words_.gWordType = u"S";
    words_.readGlossaries();
    fillWordList();
    moveInList(0, 0);
  });
  formLoaded_ = true;
}

// The glossaries go first: they are what the rest has too little room for.
void frmGlossary::runOutOfMemory() {
  words_.emptyGlossaries();
  lstWords_.Clear();
  txtArticle_.setText({});
  listBusy_ = searchOptionLocked_ = guarded_ = false;
  cmdSearchAgain_.setEnabled(optSearch_.Value(1));
  toolkit_.MsgBox(kNotEnoughMemory);
}

void frmGlossary::restoreSettings() {
  settings_.setupPNames();
  if (!settings_.readParameters()) return;
  settings_.restoreFormParams(u"frmGlossary");
  const Text glossary = settings_.getParam(parameters::GLOSSARYINDEX);
  if (!Mathlib::startsWithDigit(glossary)) return;
  if (const auto index = toInt16(glossary, app_.decimalSeparator)) selectGlossary(*index);
}

void frmGlossary::Form_QueryUnload() {
  settings_.setParam(parameters::GLOSSARYINDEX, wholeNumberText(selectedGlossary()), false);
  settings_.saveFormParams(u"frmGlossary");
}

void frmGlossary::mnuAbout_Click() {
  frmAbout about(toolkit_, app_);
  about.ShowModal();
}

void frmGlossary::mnuShowGlossVersions_Click() {
  Text report = words_.gGraphVersion;
  report.append(kLineEnd).append(kLineEnd).append(words_.gToolsVersion);
  toolkit_.MsgBox(report);
}

}  // namespace termvik
