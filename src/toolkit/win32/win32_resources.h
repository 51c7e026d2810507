// SPDX-License-Identifier: MIT
// The numbers of what lies in the program beside its code. Read by the resource compiler too, so
// they are macros.
#pragma once

// All sizes of the icon. Of all icons the first is the one that Windows shows for the file.
#define TERMVIK_ICON 1
#define TERMVIK_LOGO 2  // RCDATA: the logo as a PNG, three times as large as it is shown
