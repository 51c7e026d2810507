#include "glossary/def_words.h"

#include <algorithm>
#include <utility>

#include "common/files.h"

namespace termvik {

namespace {

// The lines of a glossary address their characters with 32 bits.
constexpr std::size_t kMostCharacters = PackedTexts<char16_t>::kMostCharacters;

}  // namespace

defWords::defWords(const Collation& collation, std::filesystem::path folder,
                   std::function<void(TextView)> showMessage)
    : collation_(&collation),
      folder_(std::move(folder)),
      showMessage_(std::move(showMessage)),
      graph_(collation),
      tools_(collation) {}

void defWords::readGlossaries() {
  gGraphFirst = 1;
  readGlossary(u"Graphical glossary:", u"graphword.txt", graph_, gGraphFirst, gGraphLast,
               gGraphVersion);
  gToolsFirst = gGraphLast + 1;
  readGlossary(u"Tools glossary:", u"toolsword.txt", tools_, gToolsFirst, gToolsLast,
               gToolsVersion);
}

void defWords::clearGlossaries() {
  entries_ = {};
  graph_ = Glossary(*collation_);
  tools_ = Glossary(*collation_);
  gGraphFirst = gGraphLast = gToolsFirst = gToolsLast = 0;
}

void defWords::readGlossary(TextView title, TextView fileName, Glossary& glossary,
                            std::int32_t firstIndex, std::int32_t& lastIndex, Text& version) {
  const std::filesystem::path path = fileIn(folder_, fileName);
  readGlossaryFile(path, glossary.lines);
  version = Text(title).append(kLineEnd);
  version.append(u"Filename: ").append(pathText(path)).append(kLineEnd);
  version.append(u"First line: ");
  if (glossary.lines.upperBound() >= 1) version.append(glossary.lines[1]);
  decodeGlossary(glossary, firstIndex, lastIndex);
}

// True when at least one line was stored. After a failure the lines that were stored stay, and the
// lines that were counted and not stored are empty.
bool defWords::readGlossaryFile(const std::filesystem::path& fileName, LineTable& lines) const {
  if (!fileExists(fileName)) {
    showMessage_(Text(u"Could not find the glossary file ").append(pathText(fileName)));
    return false;
  }
  FileMeasure measure;
  if (!measureFile(fileName, measure) || measure.bytes > kMostCharacters) return false;
  lines.reserve(measure.lines, measure.bytes);
  LineReader reader(fileName);
  std::string_view bytes;
  bool grown = false;
  while (reader.next(bytes)) {
    grown = lines.size() == measure.lines || lines.characterCount() + bytes.size() > measure.bytes;
    if (grown) break;
    lines.append(bytes);
  }
  const bool anyStored = lines.size() > 0;
  while (lines.size() < measure.lines) lines.append({});
  return anyStored && !grown && !reader.failed();
}

std::int32_t defWords::countBlocks(const LineTable& lines) {
  std::int32_t blocks = 0;
  bool inBlock = false;
  for (std::int32_t i = 1; i <= lines.upperBound(); ++i) {
    const bool isBlockLine = lines.kind(i) != LineKind::Separator;
    if (isBlockLine && !inBlock) ++blocks;
    inBlock = isBlockLine;
  }
  return blocks;
}

void defWords::decodeGlossary(Glossary& glossary, std::int32_t firstIndex,
                              std::int32_t& lastIndex) {
  const std::int32_t blocks = countBlocks(glossary.lines);
  if (firstIndex == 1) entries_.clear();
  entries_.resize(static_cast<std::size_t>(firstIndex) - 1 + static_cast<std::size_t>(blocks));
  glossary.texts.reserve(glossary.lines.size() + static_cast<std::size_t>(blocks));
  std::int32_t cursor = 1;
  lastIndex = firstIndex - 1;
  for (std::int32_t block = 0; block < blocks; ++block) {
    clsWEntry entry(glossary.texts);
    // A failing call leaves the cursor alone, so all that would follow it fail too.
    if (!entry.decodeEntry(glossary.lines, cursor)) break;
    ++lastIndex;
    gEntries(lastIndex) = entry;
  }
}

// Goes from one text to the next in widening steps: to ask each entry on the way would take as long
// as the search itself (bench/full_search).
std::int32_t defWords::nextCandidate(SearchRun& search, std::int32_t from,
                                     std::int32_t last) const {
  auto entry = entries_.begin() + from - 1;
  const auto end = entries_.begin() + last;
  if (entry >= end) return from;
  const std::size_t text = entry->nextCandidate(search);
  const auto liesBefore = [text](const clsWEntry& other) { return other.liesBefore(text); };
  std::ptrdiff_t step = 1;
  while (end - entry > step && liesBefore(entry[step])) {
    entry += step;
    step *= 2;
  }
  entry = std::partition_point(entry, entry + std::min(step + 1, end - entry), liesBefore);
  return static_cast<std::int32_t>(entry - entries_.begin()) + 1;
}

LetterCounts defWords::letterCounts() const {
  LetterCounts counts = graph_.texts.letterCounts();
  const LetterCounts& more = tools_.texts.letterCounts();
  for (std::size_t i = 0; i < counts.size(); ++i) counts[i] += more[i];
  return counts;
}

}  // namespace termvik
