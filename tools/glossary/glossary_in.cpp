// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "glossary_file.h"
#include "glossary_lines.h"
#include "losses.h"
#include "word_types.h"

namespace termvik::tool {

namespace {

// Takes the words and the comment of each entry as the program does.
class EntryReader {
 public:
  EntryReader(const GlossaryLines& lines, std::uint16_t input, const Collation& collation,
              WordList& list)
      : lines_(lines), input_(input), collation_(collation), list_(list) {}

  void read(const LineRange& block) {
    entry_.clear();
    comment_ = CommentLines(collation_);
    losses_.emplace(lines_, collation_, lost_);
    visitEntry(lines_.table(), block, *this);
    losses_->finish();
    if (entry_.words.empty()) return;
    entry_.place = entry_.words.front().place;
    if (!comment_.text().empty()) addComment();
    list_.add(entry_);
  }

  // What visitEntry() tells.
  void word(std::int32_t line, TextView text, char16_t wordType) {
    losses_->word(line, text, wordType);
    if (text.empty()) return;
    entry_.words.push_back({text, placeOf(line), languageOr(collation_, wordType)});
  }
  void comment(std::int32_t line, TextView text, bool isHead) {
    losses_->comment(line, text, isHead);
    comment_.add(text, isHead);
    endOfComment_ = line;
  }
  void passedOver(std::int32_t line) { losses_->passedOver(line); }

  void tellWhatIsLost(Messages& messages) const {
    for (const Finding& finding : lost_) {
      messages.tell(Severity::Warning, {finding.line, input_},
                    finding.text + " [" + std::string(finding.kind->code) + "]");
    }
  }

 private:
  Place placeOf(std::int32_t line) const { return {static_cast<std::uint32_t>(line), input_}; }

  void addComment() {
    const std::vector<TextView> lines = linesOf(comment_.text());
    const auto first = endOfComment_ + 1 - static_cast<std::int32_t>(lines.size());
    const TextView text = lines.size() == 1 ? lines.front() : list_.keep(joined(lines));
    entry_.comment.push_back({text, placeOf(first)});
  }

  const GlossaryLines& lines_;
  std::uint16_t input_;
  const Collation& collation_;
  WordList& list_;
  Entry entry_;
  CommentLines comment_{collation_};
  std::int32_t endOfComment_ = 0;
  std::optional<Losses> losses_;
  Findings lost_;
};

std::size_t countSeparators(const LineTable& table) {
  std::size_t count = 0;
  for (std::int32_t line = 1; line <= table.upperBound(); ++line) {
    count += table.kind(line) == LineKind::Separator ? 1 : 0;
  }
  return count;
}

}  // namespace

std::optional<Text> readGlossary(GlossaryLines glossaryLines, std::uint16_t input,
                                 const Collation& collation, WordList& list, Messages& messages) {
  const auto lines = std::make_shared<const GlossaryLines>(std::move(glossaryLines));
  list.keepOwner(lines);
  const LineTable& table = lines->table();
  if (list.entries.empty()) {
    constexpr std::size_t kShort = 32;  // characters of an entry; few are that short
    list.entries.reserve(std::min(countSeparators(table), table.characters().size() / kShort));
  }
  EntryReader reader(*lines, input, collation, list);
  for (LineRange block{1, 1}; findBlock(table, block); block.first = block.last + 1) {
    reader.read(block);
    messages.progress("reading", static_cast<std::size_t>(block.last), table.size());
  }
  reader.tellWhatIsLost(messages);
  if (table.size() == 0 || !isFirstLine(collation, table[1])) return std::nullopt;
  return Text(table[1]);
}

}  // namespace termvik::tool
