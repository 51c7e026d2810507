// SPDX-License-Identifier: MIT
// The cells of a table: RFC 4180 for any delimiter, with each line end that editors know.
#pragma once

#include <cstdint>
#include <list>
#include <string>
#include <vector>

#include "common/system/text.h"

namespace termvik::tool {

struct Cell {
  TextView text;
  std::uint32_t line = 0;  // on which it begins
  bool lasts = true;       // the text is a piece of the table's; else it goes with the next row
};

// A row lies on one line or, where a cell in quotes holds line ends, on several.
struct Row {
  std::vector<Cell> cells;
  std::uint32_t line = 1;
  bool strayText = false;  // after the closing quote of a cell; it counts as part of the cell
};

class CellReader {
 public:
  // `text` must outlive the reader. `name` is the file's for a Failure.
  CellReader(TextView text, char16_t delimiter, std::string name);

  // False at the end. Throws Failure where a cell in quotes never ends.
  bool next(Row& row);

  // How much of the text is left.
  std::size_t rest() const { return rest_.size(); }

 private:
  Cell takeCell(bool& stray);
  Cell takeQuoted(bool& stray);
  std::size_t plainLength() const;

  TextView rest_;
  char16_t delimiter_;
  std::string name_;
  std::uint32_t line_ = 1;
  std::list<Text> unquoted_;  // of the cells that do not stand in the text as they are
};

// The delimiter of a CSV: of `,` and `;` the one that its first line has more of outside quotes.
char16_t delimiterOf(TextView text);

// `cell` as it stands in a table: in quotes where it must.
void appendCell(Text& row, TextView cell, char16_t delimiter);

}  // namespace termvik::tool
