// SPDX-License-Identifier: MIT
#include <memory>
#include <utility>
#include <vector>

#include "glossary/entry_lines.h"
#include "glossary_file.h"
#include "glossary_lines.h"
#include "inspect.h"
#include "word_types.h"

namespace termvik::tool {

namespace {

// Takes the words and the comment of an entry as the program does.
class EntryReader {
 public:
  EntryReader(std::uint16_t input, const Collation& collation, WordList& list)
      : input_(input), collation_(collation), list_(list), comment_(collation) {}

  void word(std::int32_t line, TextView text, char16_t wordType) {
    if (text.empty()) return;
    entry_.words.push_back({text, placeOf(line), languageOr(collation_, wordType)});
  }
  void comment(std::int32_t line, TextView text, bool isHead) {
    comment_.add(text, isHead);
    endOfComment_ = line;
  }
  void passedOver(std::int32_t) {}

  // The entry, when all of its lines have been told.
  Entry& finish() {
    if (!comment_.text().empty()) addComment();
    if (!entry_.words.empty()) entry_.place = entry_.words.front().place;
    return entry_;
  }

 private:
  Place placeOf(std::int32_t line) const { return {static_cast<std::uint32_t>(line), input_}; }

  void addComment() {
    const std::vector<TextView> lines = linesOf(comment_.text());
    const auto first = endOfComment_ + 1 - static_cast<std::int32_t>(lines.size());
    const TextView text = lines.size() == 1 ? lines.front() : list_.keep(joined(lines));
    entry_.comment.push_back({text, placeOf(first)});
  }

  std::uint16_t input_;
  const Collation& collation_;
  WordList& list_;
  CommentLines comment_;
  std::int32_t endOfComment_ = 0;
  Entry entry_;
};

void tellWhatIsLost(const GlossaryLines& lines, std::uint16_t input, const Collation& collation,
                    Messages& messages) {
  Findings findings;
  inspectEntries(lines, collation, findings, [](const InspectedWords&) {});
  for (const Finding& finding : findings) {
    if (!finding.kind->loses) continue;
    messages.tell(Severity::Warning, {finding.line, input},
                  finding.text + " [" + std::string(finding.kind->code) + "]");
  }
}

}  // namespace

std::optional<Text> readGlossary(GlossaryLines glossaryLines, std::uint16_t input,
                                 const Collation& collation, WordList& list, Messages& messages) {
  const auto lines = std::make_shared<const GlossaryLines>(std::move(glossaryLines));
  list.keepOwner(lines);
  tellWhatIsLost(*lines, input, collation, messages);
  const LineTable& table = lines->table();
  for (LineRange range{1, 1}; findEntry(table, range); range.first = range.last + 1) {
    EntryReader reader(input, collation, list);
    visitEntry(table, range, reader);
    Entry& entry = reader.finish();
    if (!entry.words.empty()) list.entries.push_back(std::move(entry));
    messages.progress("reading", static_cast<std::size_t>(range.last), table.size());
  }
  if (table.size() == 0 || !isFirstLine(collation, table[1])) return std::nullopt;
  return Text(table[1]);
}

}  // namespace termvik::tool
