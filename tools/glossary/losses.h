// SPDX-License-Identifier: MIT
// The blocks of a glossary, and what of each the program never shows.
#pragma once

#include <cstdint>
#include <string>

#include "findings.h"
#include "glossary/entry_lines.h"
#include "glossary_lines.h"

namespace termvik::tool {

// Finds the lines between two separators that begin at line `block.first` or after it. False when
// there is none.
bool findBlock(const LineTable& table, LineRange& block);

// A visitor of the lines of one block: tells what is lost of them.
class Losses {
 public:
  Losses(const GlossaryLines& lines, const Collation& collation, Findings& findings)
      : lines_(lines), collation_(collation), findings_(findings) {}

  void word(std::int32_t line, TextView text, char16_t wordType);
  void comment(std::int32_t line, TextView text, bool isHead);
  void passedOver(std::int32_t line);

  // All lines of the block have been told.
  void finish();

 private:
  void find(const Kind& kind, std::int32_t line, std::string text);

  const GlossaryLines& lines_;
  const Collation& collation_;
  Findings& findings_;
  bool anyWord_ = false;
  std::int32_t firstHead_ = 0;  // the line of the first comment head; 0 when there is none
};

}  // namespace termvik::tool
