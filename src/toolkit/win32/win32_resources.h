// The numbers of what lies in the program beside its code. Read by the resource compiler too, so
// they are macros.
#pragma once

#define TERMVIK_ICON 1  // an icon of all sizes; of all icons the one that Windows shows for the file
#define TERMVIK_LOGO 2  // RCDATA: the logo as a PNG, three times as large as it is shown
