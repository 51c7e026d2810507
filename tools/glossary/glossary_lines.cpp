#include "glossary_lines.h"

#include <algorithm>

#include "common/system/line_reader.h"
#include "words.h"

namespace termvik::tool {

// The program takes an LF without a CR for a character of its line, an editor for a line end.
GlossaryLines GlossaryLines::ofBytes(const std::string& bytes, const Collation& collation) {
  GlossaryLines result(collation);
  result.table_.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\r')) + 1,
                        bytes.size());
  LineReader reader(bytes);
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
  result.table_.reserve(0, text.size());
  for (TextView line; takeLine(text, line);) result.table_.appendDecoded(line);
  return result;
}

}  // namespace termvik::tool
