// SPDX-License-Identifier: MIT
// The formats of word lists, and what the command line says of the files in them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/system/text.h"
#include "text_in.h"

namespace termvik::tool {

enum class Format : std::uint8_t { Glossary, Tsv, Csv, Tbx, OmegaT };

// Nothing for a name that no format has.
std::optional<Format> formatNamed(std::string_view name);

// By the ending of a file's name, in either case; nothing for an ending that no format has.
std::optional<Format> formatOfFile(const std::string& fileName);

// What a column of a table holds: one of the four languages, the comment, or nothing that is used.
enum class Column : char16_t { None = u'_', Comment = u'C' };

// The language letters and `C` are columns as they stand.
constexpr Column columnOf(char16_t letter) { return static_cast<Column>(letter); }
constexpr char16_t letterOf(Column column) { return static_cast<char16_t>(column); }

// How inputs are read.
struct ReadOptions {
  std::optional<Encoding> encoding;
  std::vector<Column> columns;  // of a table without a line that names them
  std::optional<char16_t> delimiter;
  char16_t source = u'\0';  // the two languages of an OmegaT glossary
  char16_t target = u'\0';
};

}  // namespace termvik::tool
