// SPDX-License-Identifier: MIT
// The glossary store: reads the two glossary files, cuts their lines into blocks and keeps the
// entries of both in one table.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

#include "common/collation/collation.h"
#include "common/system/files.h"
#include "common/system/large_vector.h"
#include "common/system/text.h"
#include "glossary/cls_w_entry.h"
#include "glossary/lines_ahead.h"

namespace termvik {

class LineTable;

class defWords {
 public:
  // The graphical glossary's file and that of the tools.
  static constexpr std::array<TextView, 2> kFileNames = {u"graphword.txt", u"toolsword.txt"};

  // The files lie in `folder`. `showMessage` shows a modal message and returns when it is closed.
  // The first reading takes what has been read ahead.
  defWords(const Collation& collation, std::filesystem::path folder,
           std::function<void(TextView)> showMessage, const Files& files = disk(),
           LinesAhead ahead = {});
  ~defWords();

  // Loads both glossaries, the graphical one first.
  void readGlossaries();

  // Releases all entries and lines; to be followed at once by readGlossaries.
  void clearGlossaries();

  // Releases all entries and lines and leaves two empty glossaries. Takes no memory.
  void emptyGlossaries();

  // The table of entries counts from 1. A range whose first index is above its last is empty.
  clsWEntry& gEntries(std::int32_t index) { return entries_[static_cast<std::size_t>(index) - 1]; }
  std::int32_t gGraphFirst = 0;
  std::int32_t gGraphLast = 0;
  std::int32_t gToolsFirst = 0;
  std::int32_t gToolsLast = 0;

  // Which file each glossary was read from and its first line: three lines joined by CR LF.
  Text gGraphVersion;
  Text gToolsVersion;

  // The current language: "S", "E", "D" or "F".
  Text gWordType;

  const Collation& collation() const { return *collation_; }

 private:
  struct Glossary;

  void readGlossary(TextView title, TextView fileName, Glossary& glossary, std::int32_t firstIndex,
                    std::int32_t& lastIndex, Text& version);
  void decodeGlossary(Glossary& glossary, std::int32_t firstIndex, std::int32_t& lastIndex);
  static std::int32_t countBlocks(const LineTable& lines);

  const Collation* collation_;
  std::filesystem::path folder_;
  std::function<void(TextView)> showMessage_;
  const Files* files_;
  LargeVector<clsWEntry> entries_;  // slots after the last range are empty
  std::unique_ptr<Glossary> graph_;
  std::unique_ptr<Glossary> tools_;
};

}  // namespace termvik
