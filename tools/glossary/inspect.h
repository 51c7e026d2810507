// SPDX-License-Identifier: MIT
// What the program makes of each line of a glossary file, and what of that its writer can hardly
// have meant.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "findings.h"
#include "glossary_lines.h"

namespace termvik::tool {

// A word that the program shows. `type` is the capital letter of its language, or the word type
// that the file has.
struct InspectedWord {
  TextView text;
  std::uint32_t line = 0;
  char16_t type = u'\0';
};
using InspectedWords = std::vector<InspectedWord>;

// Goes through the entries that have a word and calls `visit` with the words of each.
void inspectEntries(const GlossaryLines& lines, const Collation& collation, Findings& findings,
                    const std::function<void(const InspectedWords&)>& visit);

}  // namespace termvik::tool
