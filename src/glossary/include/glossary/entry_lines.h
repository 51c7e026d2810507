// SPDX-License-Identifier: MIT
// Which lines of a file make an entry, and what each of them is to it: the inside of a block.
#pragma once

#include <cstddef>
#include <cstdint>

#include "common/system/text.h"
#include "glossary/line_table.h"

namespace termvik {

struct LineRange {
  std::int32_t first = 0;
  std::int32_t last = 0;
};

// Finds the entry that begins at line `range.first` or after it; the separator line that ends it
// is its last. Blocks in which nothing counts are stepped over: `range.first` moves after them.
// False when no line from there to the end counts; `range` is then of no use.
bool findEntry(const LineTable& lines, LineRange& range);

// Goes through the lines of an entry and tells `visitor` what each is to it:
//   word(line, text, wordType)
//   comment(line, text, isHead)   a head replaces the comment before it
//   passedOver(line)              an empty line, or one ahead of the first word line
template <class Visitor>
void visitEntry(const LineTable& lines, const LineRange& range, Visitor&& visitor) {
  // The characters of `line` from column `column` (1-based) on.
  const auto fromColumn = [](TextView line, std::size_t column) {
    return column > line.size() ? TextView() : line.substr(column - 1);
  };
  bool inComment = false;
  bool hasWordType = false;
  char16_t wordType = u'\0';
  for (std::int32_t i = range.first; i <= range.last; ++i) {
    const TextView line = lines[i];
    const LineKind kind = lines.kind(i);
    if (kind == LineKind::Separator) continue;
    if (kind == LineKind::CommentHead) {
      inComment = true;
      visitor.comment(i, trim(fromColumn(line, 3)), true);
    } else if (inComment) {
      visitor.comment(i, line, false);
    } else if (kind == LineKind::Word) {
      wordType = line.front();
      hasWordType = true;
      visitor.word(i, fromColumn(line, 4), wordType);
    } else if (hasWordType && kind != LineKind::Empty) {
      visitor.word(i, line, wordType);
    } else {
      visitor.passedOver(i);
    }
  }
}

// The comment of an entry, from the lines that a visitor of its lines is told.
class CommentLines {
 public:
  explicit CommentLines(const Collation& collation) : collation_(&collation) {}

  // Empty lines at its beginning are none of its lines.
  void add(TextView line, bool isHead) {
    const bool begins = isHead || isEmpty();
    const char16_t* const begin = begins ? line.data() : text_.data();
    text_ = TextView(begin, static_cast<std::size_t>(line.data() + line.size() - begin));
    hasSeveralLines_ = !begins;
  }

  // As the lines lie one after the other in their table.
  TextView text() const { return text_; }

 private:
  // A comment that has several lines is not asked again, since it stays what it is: `C: x` and
  // 100,000 lines would be a hundred thousand looks at all that stands above.
  bool isEmpty() const { return !hasSeveralLines_ && collation_->isEmpty(text_); }

  const Collation* collation_;
  TextView text_;
  bool hasSeveralLines_ = false;
};

}  // namespace termvik
