#include "glossary/def_words.h"

#include <utility>

#include "common/codepage.h"
#include "common/files.h"

namespace termvik {

namespace {

// Lines and entries of a glossary address their characters with 32 bits; entries can need a little
// more room than the lines that they come from.
constexpr std::size_t kMostCharacters = PackedTexts<char16_t>::kMostCharacters / 2;

// The size of a file as its lines show it, so that its table is made once and to measure.
struct FileMeasure {
  std::size_t lines = 0;
  std::size_t characters = 0;
};

bool measureFile(const std::filesystem::path& fileName, FileMeasure& measure) {
  LineReader reader(fileName);
  std::string_view line;
  while (reader.next(line)) {
    ++measure.lines;
    measure.characters += line.size();
  }
  return !reader.failed() && measure.characters <= kMostCharacters;
}

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
  if (!measureFile(fileName, measure)) return false;
  PackedTexts<char16_t>& table = lines.lines();
  table.clear();
  table.reserve(measure.lines, measure.characters);
  LineReader reader(fileName);
  std::string_view bytes;
  Text line;
  bool grown = false;
  while (reader.next(bytes)) {
    grown =
        table.size() == measure.lines || table.characterCount() + bytes.size() > kMostCharacters;
    if (grown) break;
    line.clear();
    decodeAnsi(bytes, line);
    table.append(trimEnd(line));
  }
  const bool anyStored = table.size() > 0;
  while (table.size() < measure.lines) table.endText();
  return anyStored && !grown && !reader.failed();
}

std::int32_t defWords::countBlocks(const LineTable& lines) const {
  std::int32_t blocks = 0;
  bool inBlock = false;
  for (std::int32_t i = 1; i <= lines.upperBound(); ++i) {
    const bool isBlockLine = !isSeparator(*collation_, lines[i]);
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
  const auto lineCount = static_cast<std::size_t>(glossary.lines.upperBound());
  // A word is no longer than its line; the lines of a comment get a line end between them.
  glossary.texts.reserve(lineCount + static_cast<std::size_t>(blocks),
                         glossary.lines.lines().characterCount() + kLineEnd.size() * lineCount);
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

LetterCounts defWords::letterCounts() const {
  LetterCounts counts = graph_.texts.letterCounts();
  const LetterCounts& more = tools_.texts.letterCounts();
  for (std::size_t i = 0; i < counts.size(); ++i) counts[i] += more[i];
  return counts;
}

}  // namespace termvik
