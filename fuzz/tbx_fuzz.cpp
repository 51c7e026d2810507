// SPDX-License-Identifier: MIT
// TermBase eXchange through termvik-glossary and back.
#include "input.h"
#include "run_tool.h"

namespace termvik::fuzz {

void fuzz(Input& input) {
  const Collation& collation = input.collation();
  expectSameBack(collation, input.allBytes(), tool::Format::Tbx, tool::Format::Tsv);
}

}  // namespace termvik::fuzz
