// SPDX-License-Identifier: MIT
#include "losses.h"

#include <utility>

namespace termvik::tool {

bool findBlock(const LineTable& table, LineRange& block) {
  const std::int32_t end = table.upperBound() + 1;
  while (block.first < end && table.kind(block.first) == LineKind::Separator) ++block.first;
  block.last = block.first;
  while (block.last < end && table.kind(block.last) != LineKind::Separator) ++block.last;
  --block.last;
  return block.first < end;
}

void Losses::word(std::int32_t line, TextView text, char16_t) {
  constexpr std::size_t kMark = 2;  // characters
  const LineTable& table = lines_.table();
  if (const TextView whole = table[line];
      table.kind(line) == LineKind::Word && whole.size() > kMark && whole[kMark] != u' ') {
    find(kinds::kLostLetter, line,
         inQuotes(whole) + " has no blank after its mark; its third character is lost");
  }
  anyWord_ = anyWord_ || !collation_.isEmpty(text);
}

void Losses::comment(std::int32_t line, TextView, bool isHead) {
  if (!isHead) return;
  if (firstHead_ != 0) {
    find(kinds::kLostComment, line, "a second C: in the entry; the comment before it is lost");
  } else {
    firstHead_ = line;
  }
}

void Losses::passedOver(std::int32_t line) {
  const bool isVersionLine = line == 1;
  if (isVersionLine || lines_.table().kind(line) == LineKind::Empty) return;
  find(kinds::kLostLine, line, inQuotes(lines_.table()[line]) + " stands ahead of the first word");
}

void Losses::finish() {
  if (anyWord_ || firstHead_ == 0) return;
  find(kinds::kLostBlock, firstHead_, "the comment has no word, so that nothing leads to it");
}

void Losses::find(const Kind& kind, std::int32_t line, std::string text) {
  findings_.push_back({lines_.editorLine(line), &kind, std::move(text)});
}

}  // namespace termvik::tool
