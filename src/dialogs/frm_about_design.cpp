// SPDX-License-Identifier: MIT
#include "dialogs/frm_about_design.h"

#include "common/system/maker.h"

namespace termvik {

namespace {

constexpr TextView kDisclaimer =
    u"Disclaimer: Sandvret do not in any way warrant the results you may obtain by \r\n"
    u"using these word lists and this program. In no event will we be liable to you for any "
    u"damages "
    u"whatsoever arising out \r\n"
    u"of the use or inability to use this program and its word lists.\r\n";

constexpr FontDesign kTitleFont{.family = u"MS Sans Serif", .points = 12, .bold = true};

}  // namespace

WindowDesign frmAboutDesign() {
  using enum ControlKind;
  return {.name = u"frmAbout",
          .accessibleName = u"About Termvik",
          .clientWidth = 8700,
          .clientHeight = 5865,
          .hasTitleBar = false,
          .controls = {
              {.kind = Label,
               .name = u"Label1",
               .caption = kContactLine,
               .place = {240, 5160, 3855, 570},
               .multiLine = true},
              {.kind = PictureBox,
               .name = u"picIcon",
               .place = {3000, 600, 2580, 2025},
               .accessibleName = u"Termvik logo"},
              {.kind = Label,
               .name = u"lblTitle",
               .caption = u"Termvik - Graphical and Tools Glossary",
               .place = {120, 120, 8535, 345},
               .font = kTitleFont,
               .alignment = Alignment::Centre,
               .textColour = Colour::Black},
              {.kind = CommandButton,
               .name = u"cmdOK",
               .caption = u"OK",
               .place = {7440, 5280, 1092, 345},
               .isDefault = true,
               .isCancel = true},
              {.kind = Label,
               .name = u"lblWebInfo",
               .caption = kWebAddressLine,
               .place = {120, 4320, 8385, 240},
               .alignment = Alignment::Centre,
               .textColour = Colour::Black},
              {.kind = TextBox,
               .name = u"Text1",
               .caption = kDisclaimer,
               .place = {120, 3360, 8415, 735},
               .accessibleName = u"Disclaimer",
               .alignment = Alignment::Centre,
               .backColour = Colour::ToolTipBackground},
              {.kind = TextBox,
               .name = u"Text2",
               .place = {240, 2760, 8175, 495},
               .accessibleName = u"Authors and version",
               .alignment = Alignment::Centre,
               .backColour = Colour::ButtonFace,
               .flat = true,
               .tabStop = false},
              {.kind = Label,
               .name = u"Label3",
               .caption = kMakerLine,
               .place = {120, 4560, 8415, 255},
               .alignment = Alignment::Centre},
              {.kind = Line, .name = u"Line1", .place = {240, 5040, 8280, 0}},
          }};
}

}  // namespace termvik
