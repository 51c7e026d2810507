// SPDX-License-Identifier: MIT
// What a window is made of, as data: every toolkit builds its windows from these tables.
//
// All measures are in twips (1440 to the inch). `left` and `top` count from the top left corner of
// the container's client area.
#pragma once

#include <cstdint>
#include <vector>

#include "common/system/text.h"

namespace termvik {

struct Place {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;

  bool operator==(const Place&) const = default;
};

enum class ControlKind {
  EditBox,       // one line that the user edits
  TextBox,       // several lines that the user reads
  ListBox,       // sorted rows
  OptionButton,  // one of a group of which at most one is on
  PictureBox,    // the logo
  Label,
  Frame,  // holds other controls
  CommandButton,
  CheckBox,
  Line,  // a straight line along its place; not a control that the logic sees
};

enum class Alignment { Left, Right, Centre };

enum class Colour { Default, Black, ToolTipBackground, ButtonFace };

// `points` 0 stands for the toolkit's default font.
struct FontDesign {
  TextView family;
  float points = 0;
  bool bold = false;
  bool italic = false;
};

struct ControlDesign {
  static constexpr std::int32_t kNoIndex = -1;

  ControlKind kind{};
  TextView name;
  std::int32_t index = kNoIndex;  // from 0, in a group of controls that share a name
  TextView caption{};             // also the first text of a text box
  Place place{};
  TextView container{};        // name of the frame that the control lies in; empty for the window
  TextView accessibleName{};   // what a screen reader says where there is no caption
  TextView accessibleGroup{};  // and of its group where no frame holds it
  FontDesign font{};
  Alignment alignment = Alignment::Left;
  Colour textColour = Colour::Default;
  Colour backColour = Colour::Default;
  bool multiLine = false;  // of a label: several lines, wrapped
  bool scrolls = false;    // has a vertical scroll bar
  bool flat = false;       // no border
  bool on = false;         // the start value of an option button or check box
  bool enabled = true;
  bool tabStop = true;
  bool isDefault = false;  // Enter presses it, wherever the focus is
  bool isCancel = false;   // Esc presses it
};

struct MenuItemDesign {
  TextView name;
  TextView caption;
  bool enabled = true;  // a switched-off item is shown greyed
};

struct WindowDesign {
  TextView name;
  TextView caption{};
  TextView accessibleName{};  // what a screen reader says where there is no caption
  float clientWidth = 0;
  float clientHeight = 0;
  bool hasTitleBar = true;
  std::vector<ControlDesign> controls{};  // in tab order
  std::vector<MenuItemDesign> menu{};     // all at the top level of the menu bar
};

}  // namespace termvik
