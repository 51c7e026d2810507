// SPDX-License-Identifier: MIT
// What a search text asks for.
#pragma once

#include <vector>

#include "common/collation/collation.h"
#include "common/system/text.h"

namespace termvik {

// Cuts a search text into at most ten terms: words between blanks and tabs, and phrases that begin
// with a double quote and run to the next one. Later terms are dropped.
std::vector<TextView> splitSearchWords(const Collation& collation, TextView searchText);

}  // namespace termvik
