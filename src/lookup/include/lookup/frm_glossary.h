// SPDX-License-Identifier: MIT
// The main window: the search box, the sorted list of words, the article, and the commands that
// change what the list holds.
//
// The list control is the only index of words, and the controls are the only place where the choice
// of glossary, the search mode and the search text live.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "common/system/app.h"
#include "common/system/text.h"
#include "common/toolkit/toolkit.h"
#include "glossary/def_words.h"
#include "lookup/word_rows.h"
#include "settings/parameters.h"

namespace termvik {

class frmGlossary {
 public:
  // All of them must outlive the window.
  struct Surroundings {
    Toolkit& toolkit;
    const App& app;
    defWords& words;
    parameters& settings;
  };

  explicit frmGlossary(const Surroundings& surroundings);

  Window& window() { return *window_; }

  // Restores the window's placement and the choice of glossary, reads the glossaries and fills the
  // list. To be called once, before the window is shown.
  void Form_Load();

  // The chosen glossary: 0 graphical, 1 tools, 2 both; 2 also when none is chosen.
  std::int16_t selectedGlossary() const;
  // Chooses the glossary; any other number than 0, 1 or 2 is ignored.
  void selectGlossary(std::int16_t Index);

  // Lets go of the glossaries and all that is shown of them, and says why. For what runs out of
  // memory outside of this window's own handlers, which come here by themselves.
  void runOutOfMemory();

 private:
  void connectEvents();
  template <class... Arguments>
  auto handler(void (frmGlossary::*handle)(Arguments...));
  template <class Act>
  void guard(Act act);
  void restoreSettings();

  // word_list.cpp
  void fillWordList();
  void cmdSearchAgain_Click();
  void searchAgain();
  WordVisitor addRow();
  ChosenGlossaries chosenGlossaries() const;
  void moveInList(std::int32_t first, std::int32_t last);
  void showSelectedArticle();
  void placeSelection();
  void leaveRoom() const;
  void lstWords_Click();
  void optGlossary_Click(std::int16_t Index);

  // incremental_lookup.cpp
  bool lookUpSearchText();
  void txtSearch_Change();
  void txtSearch_Click();
  void txtSearch_KeyDown(std::int16_t& keyCode);
  void txtSearch_KeyPress(std::int16_t& character);

  // commands.cpp
  void optSearch_Click(std::int16_t Index);
  void chkShowDoublet_Click();
  void mnuEnglish_Click();
  void mnuSwedish_Click();
  void mnuGerman_Click();
  void mnuFrance_Click();
  void changeLanguage(TextView wordType, TextView menuItem);
  void languageChanged();
  void mnuReRead_Click();
  void mnuDoubletList_Click();

  // speech.cpp
  void sayRow(TextView before = {});
  void sayArticle();
  void sayChange(TextView change);
  Text listSize() const;
  TextView captionOf(TextView option, std::int32_t index) const;

  // word_list_file.cpp
  void mnuCreateWordList_Click();
  std::string wordListBytes() const;

  // layout.cpp
  void Form_Resize();

  // frm_glossary.cpp
  void Form_QueryUnload();
  void mnuAbout_Click();
  void mnuShowGlossVersions_Click();

  Toolkit& toolkit_;
  const App& app_;
  defWords& words_;
  parameters& settings_;
  std::unique_ptr<Window> window_;

  EditBox& txtSearch_;
  ListBox& lstWords_;
  TextBox& txtArticle_;
  OptionGroup& optGlossary_;
  Control& picLogo_;
  Control& lblInternet_;
  OptionGroup& optSearch_;
  CommandButton& cmdSearchAgain_;
  CheckBox& chkShowDoublet_;

  bool listBusy_ = false;            // moveInList is moving the selection
  bool holdsHits_ = false;           // the list holds what a search has found
  bool formLoaded_ = false;          // Form_Load has come to its end
  bool searchOptionLocked_ = false;  // languageChanged is switching look-up on
  bool guarded_ = false;             // a handler is at work that takes care of lost memory
};

}  // namespace termvik
