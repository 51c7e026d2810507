// SPDX-License-Identifier: MIT
#include "lookup/frm_glossary_design.h"

#include "common/system/maker.h"

namespace termvik {

namespace {

constexpr FontDesign kReadingFont{.family = u"MS Sans Serif", .points = 9.75F};
constexpr FontDesign kAddressFont{
    .family = u"Verdana", .points = 9.75F, .bold = true, .italic = true};

std::vector<ControlDesign> controls() {
  using enum ControlKind;
  return {
      {.kind = EditBox,
       .name = u"txtSearch",
       .place = {240, 1200, 3015, 285},
       .accessibleName = u"Search",
       .font = kReadingFont},
      {.kind = ListBox,
       .name = u"lstWords",
       .place = {240, 1680, 3015, 3660},
       .accessibleName = u"Words",
       .font = kReadingFont},
      {.kind = TextBox,
       .name = u"txtArticle",
       .place = {3600, 2280, 5535, 3015},
       .accessibleName = u"Article",
       .font = kReadingFont,
       .scrolls = true},
      {.kind = OptionButton,
       .name = u"optGlossary",
       .index = 0,
       .caption = u"Graphical glossary",
       .place = {300, 120, 1800, 255},
       .accessibleGroup = u"Glossary"},
      {.kind = OptionButton,
       .name = u"optGlossary",
       .index = 1,
       .caption = u"Tools glossary",
       .place = {300, 400, 1800, 255},
       .accessibleGroup = u"Glossary"},
      {.kind = OptionButton,
       .name = u"optGlossary",
       .index = 2,
       .caption = u"Both",
       .place = {300, 680, 1800, 255},
       .accessibleGroup = u"Glossary"},
      {.kind = PictureBox,
       .name = u"picLogo",
       .place = {6600, 0, 2535, 1695},
       .accessibleName = u"Termvik logo",
       .flat = true},
      {.kind = Label,
       .name = u"lblInternet",
       .caption = kWebAddress,
       .place = {7560, 1800, 1575, 375},
       .font = kAddressFont,
       .alignment = Alignment::Right},
      {.kind = Frame,
       .name = u"Frame1",
       .caption = u"Specify look up in list or full search",
       .place = {2160, 120, 4215, 975}},
      {.kind = OptionButton,
       .name = u"optSearch",
       .index = 1,
       .caption = u"Search words in whole glossary",
       .place = {120, 525, 2600, 375},
       .container = u"Frame1"},
      {.kind = OptionButton,
       .name = u"optSearch",
       .index = 0,
       .caption = u"Look up word in list",
       .place = {120, 240, 1935, 375},
       .container = u"Frame1",
       .on = true},
      {.kind = CommandButton,
       .name = u"cmdSearchAgain",
       .caption = u"Search again",
       .place = {2760, 480, 1335, 375},
       .container = u"Frame1",
       .enabled = false},
      {.kind = CheckBox,
       .name = u"chkShowDoublet",
       .caption = u"Markera dubletter!",
       .place = {360, 960, 1815, 255},
       .on = true},
  };
}

std::vector<MenuItemDesign> menu() {
  return {
      {.name = u"mnuEnglish", .caption = u"English"},
      {.name = u"mnuSwedish", .caption = u"Svenska"},
      {.name = u"mnuGerman", .caption = u"Deutsch"},
      {.name = u"mnuFrance", .caption = u"Francais"},
      {.name = u"mnuAbout", .caption = u"About"},
      {.name = u"mnuReRead", .caption = u"Läs in ordlistefilerna igen"},
      {.name = u"mnuShowGlossVersions", .caption = u"Visa ordlisteversioner"},
      {.name = u"mnuCreateWordList", .caption = u"Skapa ordlistefil", .enabled = false},
      {.name = u"mnuDoubletList", .caption = u"Skapa lista över dubbletter"},
  };
}

}  // namespace

WindowDesign frmGlossaryDesign() {
  return {.name = u"frmGlossary",
          .caption = u"Termvik - Graphical and tools glossary",
          .clientWidth = 10815,
          .clientHeight = 6030,
          .controls = controls(),
          .menu = menu()};
}

}  // namespace termvik
