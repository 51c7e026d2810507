// SPDX-License-Identifier: MIT
// A glossary file cut into lines, and what the program makes of each of them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/collation/collation.h"
#include "glossary/line_table.h"

namespace termvik::tool {

class GlossaryLines {
 public:
  // The lines as the program finds them in the bytes of a file.
  static GlossaryLines ofBytes(std::string_view bytes, const Collation& collation);

  // The lines of a text, or of bytes in Windows-1252, ended by CR LF, LF or CR.
  static GlossaryLines ofText(TextView text, const Collation& collation);
  static GlossaryLines ofWindows1252(std::string_view bytes, const Collation& collation);

  const LineTable& table() const { return table_; }

  // Where an editor shows line `line` of the table.
  std::uint32_t editorLine(std::int32_t line) const {
    const auto index = static_cast<std::size_t>(line) - 1;
    return editorLines_.empty() ? static_cast<std::uint32_t>(line) : editorLines_[index];
  }

 private:
  explicit GlossaryLines(const Collation& collation) : table_(collation) {}

  LineTable table_;
  std::vector<std::uint32_t> editorLines_;  // empty where they are those of the table
};

}  // namespace termvik::tool
