// The glossary store: reads the two glossary files, cuts their lines into blocks and keeps the
// entries of both in one table.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

#include "common/collation.h"
#include "common/text.h"
#include "glossary/cls_w_entry.h"

namespace termvik {

class defWords {
 public:
  // The files lie in `folder`. `showMessage` shows a modal message and returns when it is closed.
  defWords(const Collation& collation, std::filesystem::path folder,
           std::function<void(TextView)> showMessage);

  // Loads both glossaries, the graphical one first.
  void readGlossaries();

  // Releases all entries and lines; to be followed at once by readGlossaries.
  void clearGlossaries();

  // The table of entries counts from 1. A range whose first index is above its last is empty.
  clsWEntry& gEntries(std::int32_t index) { return entries_[static_cast<std::size_t>(index) - 1]; }
  std::int32_t gGraphFirst = 0;
  std::int32_t gGraphLast = 0;
  std::int32_t gToolsFirst = 0;
  std::int32_t gToolsLast = 0;

  // The first entry from `from` to `last`, all of one glossary, that can have a term of `search`;
  // last + 1 when none can.
  std::int32_t nextCandidate(SearchRun& search, std::int32_t from, std::int32_t last) const;

  // Which file each glossary was read from and its first line: three lines joined by CR LF.
  Text gGraphVersion;
  Text gToolsVersion;

  // The current language: "S", "E", "D" or "F".
  Text gWordType;

  const Collation& collation() const { return *collation_; }

  // How often each letter stands in some of the entries of both glossaries.
  LetterCounts letterCounts() const;

 private:
  // One glossary's file: its lines as read and the texts of its entries.
  struct Glossary {
    explicit Glossary(const Collation& collation) : lines(collation), texts(collation) {}

    LineTable lines;
    EntryTexts texts;
  };

  void readGlossary(TextView title, TextView fileName, Glossary& glossary, std::int32_t firstIndex,
                    std::int32_t& lastIndex, Text& version);
  bool readGlossaryFile(const std::filesystem::path& fileName, LineTable& lines) const;
  void decodeGlossary(Glossary& glossary, std::int32_t firstIndex, std::int32_t& lastIndex);
  static std::int32_t countBlocks(const LineTable& lines);

  const Collation* collation_;
  std::filesystem::path folder_;
  std::function<void(TextView)> showMessage_;
  std::vector<clsWEntry> entries_;  // slots behind the last range are empty
  Glossary graph_;
  Glossary tools_;
};

}  // namespace termvik
