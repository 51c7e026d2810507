// SPDX-License-Identifier: MIT
// The rule of the search box: which row a search text leads to.
#pragma once

#include <cstdint>

#include "common/collation/sorted_rows.h"

namespace termvik {

// Rows count from 0.
struct FoundRows {
  std::int32_t top = 0;     // the row to select
  std::int32_t bottom = 0;  // to come into view with it, where it stands after `top`
  bool whole = false;       // the row begins with the whole text, which is not empty
};

// When the whole text begins some row, the run of rows that begin with it; otherwise the first row
// that begins with the longest leading part of the text that any row begins with. Row 0 when none
// does, or the text is empty.
FoundRows lookUp(const SortedRows& rows, TextView searchText);

}  // namespace termvik
