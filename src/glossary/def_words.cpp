// SPDX-License-Identifier: MIT
#include "glossary/def_words.h"

#include <utility>

#include "common/system/line_reader.h"
#include "entry_texts.h"
#include "glossary/line_table.h"

namespace termvik {

// One glossary's file: its lines as read and the texts of its entries.
struct defWords::Glossary {
  explicit Glossary(const Collation& collation) : lines(collation), texts(collation, lines) {}

  void clear() {
    texts.clear();
    lines.clear();
  }

  LineTable lines;
  EntryTexts texts;
};

defWords::defWords(const Collation& collation, std::filesystem::path folder,
                   std::function<void(TextView)> showMessage, const Files& files)
    : collation_(&collation),
      folder_(std::move(folder)),
      showMessage_(std::move(showMessage)),
      files_(&files),
      graph_(std::make_unique<Glossary>(collation)),
      tools_(std::make_unique<Glossary>(collation)) {}

defWords::~defWords() = default;

void defWords::readGlossaries() {
  gGraphFirst = 1;
  readGlossary(u"Graphical glossary:", kFileNames[0], *graph_, gGraphFirst, gGraphLast,
               gGraphVersion);
  gToolsFirst = gGraphLast + 1;
  readGlossary(u"Tools glossary:", kFileNames[1], *tools_, gToolsFirst, gToolsLast, gToolsVersion);
}

void defWords::clearGlossaries() {
  entries_ = LargeVector<clsWEntry>();
  graph_->clear();
  tools_->clear();
  gGraphFirst = gGraphLast = gToolsFirst = gToolsLast = 0;
}

void defWords::emptyGlossaries() {
  clearGlossaries();
  gGraphFirst = gToolsFirst = 1;
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
  if (!measureFile(*files_, fileName, measure)) return false;
  lines.reserve(measure.lines, measure.bytes);
  LineReader reader(*files_, fileName);
  std::string_view bytes;
  bool grown = false;
  while (reader.next(bytes)) {
    grown = lines.size() == measure.lines;
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

}  // namespace termvik
