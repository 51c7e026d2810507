// SPDX-License-Identifier: MIT
// What the program holds of Windows, which must stay flat however long it runs.
#pragma once

#include "json_lines.h"

namespace termvik::replay {

// Wine does not count them. There the last two are the highest number of some new ones: it rises
// when others are not given back.
Json handlesJson();

}  // namespace termvik::replay
