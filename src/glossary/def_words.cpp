// SPDX-License-Identifier: MIT
#include "glossary/def_words.h"

#include <utility>

#include "entry_texts.h"
#include "glossary/line_table.h"
#include "read_lines.h"

namespace termvik {

// One glossary's file: its lines as read and the texts of its entries.
struct defWords::Glossary {
  Glossary(const Collation& collation, std::future<LineTable> linesAhead)
      : ahead(std::move(linesAhead)), lines(collation), texts(collation, lines) {}

  void clear() {
    ahead = {};
    texts.clear();
    lines.clear();
  }

  std::future<LineTable> ahead;  // the lines, where they are being read already
  LineTable lines;
  EntryTexts texts;
};

defWords::defWords(const Collation& collation, std::filesystem::path folder,
                   std::function<void(TextView)> showMessage, const Files& files, LinesAhead ahead)
    : collation_(&collation),
      folder_(std::move(folder)),
      showMessage_(std::move(showMessage)),
      files_(&files),
      graph_(std::make_unique<Glossary>(collation, std::move(ahead.graph))),
      tools_(std::make_unique<Glossary>(collation, std::move(ahead.tools))) {}

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
  if (!fileExists(path)) {
    showMessage_(Text(u"Could not find the glossary file ").append(pathText(path)));
  } else {
    glossary.lines =
        glossary.ahead.valid() ? glossary.ahead.get() : readLines(*collation_, *files_, path);
  }
  version = Text(title).append(kLineEnd);
  version.append(u"Filename: ").append(pathText(path)).append(kLineEnd);
  version.append(u"First line: ");
  if (glossary.lines.upperBound() >= 1) version.append(glossary.lines[1]);
  decodeGlossary(glossary, firstIndex, lastIndex);
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
  glossary.texts.endAdding();
}

}  // namespace termvik
