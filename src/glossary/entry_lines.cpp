// SPDX-License-Identifier: MIT
#include "glossary/entry_lines.h"

namespace termvik {

bool findEntry(const LineTable& lines, LineRange& range) {
  bool anyCounted = false;
  bool inComment = false;
  for (std::int32_t i = range.first; i <= lines.upperBound(); ++i) {
    const LineKind kind = lines.kind(i);
    if (kind == LineKind::Separator) {
      if (anyCounted) {
        range.last = i;
        return true;
      }
      range.first = i + 1;
      inComment = false;  // else the comment of a wordless block would swallow the rest of the file
      continue;
    }
    range.last = i;
    if (kind == LineKind::CommentHead) {
      inComment = true;
    } else if (!inComment && kind != LineKind::Empty) {
      anyCounted = true;
    }
  }
  return anyCounted;
}

}  // namespace termvik
