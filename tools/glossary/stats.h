// SPDX-License-Identifier: MIT
// `stats`: how much there is in word lists.
#pragma once

#include <string>
#include <vector>

#include "common/collation/collation.h"
#include "words.h"

namespace termvik::tool {

// A part of a list: the entries of one file, or all.
struct ListPart {
  std::string name;
  std::size_t first = 0;  // entry
  std::size_t end = 0;
};

// A table in UTF-8 for each part.
std::string statsText(const WordList& list, const std::vector<ListPart>& parts,
                      const Collation& collation);

}  // namespace termvik::tool
