// SPDX-License-Identifier: MIT
// `merge`: which entries of several inputs are one.
#pragma once

#include <cstddef>
#include <vector>

#include "common/collation/collation.h"
#include "words.h"

namespace termvik::tool {

// What became of the entries of one input.
struct MergeCounts {
  std::size_t read = 0;
  std::size_t dropped = 0;
  std::size_t joined = 0;
};

// Drops each entry that is equal to an earlier one. With `join`, an entry that has words of an
// earlier one in two languages gives its further words and its comment to the first such one.
std::vector<MergeCounts> mergeEntries(WordList& list, std::size_t inputs, bool join,
                                      const Collation& collation);

}  // namespace termvik::tool
