// SPDX-License-Identifier: MIT
// Tables, with commas, semicolons or tabs, through termvik-glossary and back.
#include <utility>

#include "input.h"
#include "run_tool.h"

namespace termvik::fuzz {

void fuzz(Input& input) {
  const Collation& collation = input.collation();
  const bool hasTabs = input.below(2) == 0;
  const auto [format, other] = hasTabs ? std::pair(tool::Format::Tsv, tool::Format::Csv)
                                       : std::pair(tool::Format::Csv, tool::Format::Tsv);
  expectSameBack(collation, input.allBytes(), format, other);
}

}  // namespace termvik::fuzz
