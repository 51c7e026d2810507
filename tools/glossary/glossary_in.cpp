#include <memory>

#include "glossary/cls_w_entry.h"
#include "glossary/entry_lines.h"
#include "glossary/entry_texts.h"
#include "glossary_file.h"
#include "glossary_lines.h"
#include "inspect.h"
#include "word_types.h"

namespace termvik::tool {

namespace {

// A glossary in memory; the texts of its entries lie in it.
struct Glossary {
  explicit Glossary(GlossaryLines glossaryLines, const Collation& collation)
      : lines(std::move(glossaryLines)), texts(collation, lines.table()) {}

  GlossaryLines lines;
  EntryTexts texts;
};

// The lines of an entry that its words and the last line of its comment come from.
struct Places {
  std::vector<std::int32_t> words;
  std::int32_t endOfComment = 0;

  void word(std::int32_t line, TextView, char16_t) { words.push_back(line); }
  void comment(std::int32_t line, TextView, bool) { endOfComment = line; }
  void passedOver(std::int32_t) {}
};

Entry entryOf(const clsWEntry& decoded, const Places& places, std::uint16_t input,
              const Collation& collation, WordList& list) {
  Entry entry;
  entry.words.reserve(places.words.size());
  for (std::size_t i = 0; i < places.words.size(); ++i) {
    const auto index = static_cast<std::int32_t>(i) + 1;
    const Place place{static_cast<std::uint32_t>(places.words[i]), input};
    const TextView word = decoded.entryWord(index);
    const char16_t type = languageOr(collation, decoded.entryType(index).front());
    if (!word.empty()) entry.words.push_back({word, place, type});
  }
  if (!decoded.entryComment().empty()) {
    const std::vector<TextView> lines = linesOf(decoded.entryComment());
    const auto first = static_cast<std::size_t>(places.endOfComment) + 1 - lines.size();
    const TextView text = lines.size() == 1 ? lines.front() : list.keep(joined(lines));
    entry.comment.push_back({text, {static_cast<std::uint32_t>(first), input}});
  }
  if (!entry.words.empty()) entry.place = entry.words.front().place;
  return entry;
}

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

std::optional<Text> readGlossary(TextView text, std::uint16_t input, const Collation& collation,
                                 WordList& list, Messages& messages) {
  const auto glossary =
      std::make_shared<Glossary>(GlossaryLines::ofText(text, collation), collation);
  const LineTable& table = glossary->lines.table();
  tellWhatIsLost(glossary->lines, input, collation, messages);
  for (std::int32_t line = 1;;) {
    clsWEntry decoded(glossary->texts);
    LineRange range{line, line};
    if (!findEntry(table, range) || !decoded.decodeEntry(table, line)) break;
    Places places;
    visitEntry(table, range, places);
    Entry entry = entryOf(decoded, places, input, collation, list);
    if (!entry.words.empty()) list.entries.push_back(std::move(entry));
    messages.progress("reading", static_cast<std::size_t>(line), table.size());
  }
  list.keepOwner(glossary);
  if (table.size() == 0 || !isFirstLine(collation, table[1])) return std::nullopt;
  return Text(table[1]);
}

}  // namespace termvik::tool
