// SPDX-License-Identifier: MIT
#include "glossary_lines.h"

#include <algorithm>
#include <utility>

#include "common/system/line_reader.h"
#include "text_in.h"
#include "words.h"

namespace termvik::tool {

// The program takes an LF without a CR for a character of its line, an editor for a line end.
GlossaryLines GlossaryLines::ofBytes(std::string_view bytes, const Collation& collation) {
  GlossaryLines result(collation);
  result.table_.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\r')) + 1,
                        bytes.size());
  LineReader reader{std::string(bytes)};
  std::uint32_t editorLine = 1;
  for (std::string_view line; reader.next(line);) {
    result.table_.append(line);
    result.editorLines_.push_back(editorLine);
    editorLine += 1 + static_cast<std::uint32_t>(std::count(line.begin(), line.end(), '\n'));
  }
  return result;
}

GlossaryLines GlossaryLines::ofText(TextView text, const Collation& collation) {
  GlossaryLines result(collation);
  result.table_.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), u'\n')) + 1,
                        text.size());
  for (TextView line; takeLine(text, line);) result.table_.appendDecoded(line);
  return result;
}

GlossaryLines GlossaryLines::ofWindows1252(std::string_view bytes, const Collation& collation) {
  GlossaryLines result(collation);
  result.table_.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1,
                        bytes.size());
  Text decoded;
  for (std::string_view line; takeLine(bytes, line);) {
    decoded.resize(line.size());
    decodeWindows1252(line, decoded.data());
    result.table_.appendDecoded(decoded);
  }
  return result;
}

}  // namespace termvik::tool
