#include "lookup/frm_glossary.h"

#include "common/mathlib.h"
#include "common/numbers.h"
#include "dialogs/frm_about.h"
#include "lookup/frm_glossary_design.h"

namespace termvik {

frmGlossary::frmGlossary(const Surroundings& surroundings)
    : toolkit_(surroundings.toolkit),
      app_(surroundings.app),
      words_(surroundings.words),
      settings_(surroundings.settings),
      window_(toolkit_.createWindow(frmGlossaryDesign())),
      txtSearch_(window_->textBox(u"txtSearch")),
      lstWords_(window_->listBox(u"lstWords")),
      txtArticle_(window_->textBox(u"txtArticle")),
      optGlossary_(window_->optionGroup(u"optGlossary")),
      picLogo_(window_->control(u"picLogo")),
      lblInternet_(window_->control(u"lblInternet")),
      optSearch_(window_->optionGroup(u"optSearch")),
      cmdSearchAgain_(window_->commandButton(u"cmdSearchAgain")),
      chkShowDoublet_(window_->checkBox(u"chkShowDoublet")) {
  connectEvents();
}

void frmGlossary::connectEvents() {
  window_->Resize = [this] { Form_Resize(); };
  window_->QueryUnload = [this] { Form_QueryUnload(); };
  lstWords_.Click = [this] { lstWords_Click(); };
  optGlossary_.Click = [this](std::int16_t) { optGlossary_Click(); };
  txtSearch_.Change = [this] { txtSearch_Change(); };
  txtSearch_.Click = [this] { txtSearch_Click(); };
  txtSearch_.KeyDown = [this](std::int16_t& keyCode) { txtSearch_KeyDown(keyCode); };
  txtSearch_.KeyPress = [this](std::int16_t& character) { txtSearch_KeyPress(character); };
  cmdSearchAgain_.Click = [this] { cmdSearchAgain_Click(); };
  optSearch_.Click = [this](std::int16_t Index) { optSearch_Click(Index); };
  chkShowDoublet_.Click = [this] { chkShowDoublet_Click(); };
  window_->menuItem(u"mnuEnglish").Click = [this] { mnuEnglish_Click(); };
  window_->menuItem(u"mnuSwedish").Click = [this] { mnuSwedish_Click(); };
  window_->menuItem(u"mnuGerman").Click = [this] { mnuGerman_Click(); };
  window_->menuItem(u"mnuFrance").Click = [this] { mnuFrance_Click(); };
  window_->menuItem(u"mnuAbout").Click = [this] { mnuAbout_Click(); };
  window_->menuItem(u"mnuReRead").Click = [this] { mnuReRead_Click(); };
  window_->menuItem(u"mnuShowGlossVersions").Click = [this] { mnuShowGlossVersions_Click(); };
  window_->menuItem(u"mnuCreateWordList").Click = [this] { mnuCreateWordList_Click(); };
  window_->menuItem(u"mnuDoubletList").Click = [this] { mnuDoubletList_Click(); };
}

void frmGlossary::Form_Load() {
  restoreSettings();
  words_.gWordType = u"S";
  words_.readGlossaries();
  fillWordList();
  moveInList(0, 0);
  formLoaded_ = true;
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
