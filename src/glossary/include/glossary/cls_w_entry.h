// SPDX-License-Identifier: MIT
// One glossary entry: the words of one concept, each with a word type that stands for its language,
// and an optional comment.
#pragma once

#include <cstddef>
#include <cstdint>

#include "common/system/text.h"

namespace termvik {

class Collation;
class EntryTexts;
class LineTable;

class clsWEntry {
 public:
  clsWEntry() = default;

  // An empty entry whose texts will lie in `texts`, which must outlive it.
  explicit clsWEntry(EntryTexts& texts) : texts_(&texts) {}

  // Decodes one entry from `arr`, beginning at line `nextLine`. True when the entry was stored;
  // `nextLine` then stands on the line where the next entry's scan begins. False when no line from
  // there to the end counts; `nextLine` and the entry are then untouched.
  bool decodeEntry(const LineTable& arr, std::int32_t& nextLine);

  // Gives the next non-empty word of type `aWordType` in file order. The caller sets `getFirst`
  // before the first call, which clears it, and calls until the result is false.
  bool getGlossaryWord(TextView aWordType, bool& getFirst, TextView& word);

  // The word to list for a hit in the text `hit` of the glossary, which is one of the entry's: that
  // word itself or, for the comment, the first word of `aWordType`, or the first word of all.
  TextView wordForHit(std::size_t hit, TextView aWordType) const;

  // The texts of the glossary, and which of them are the entry's: its words, then its comment.
  const EntryTexts& texts() const { return *texts_; }
  std::size_t firstText() const { return firstText_; }
  std::size_t commentText() const { return firstText_ + static_cast<std::size_t>(entryWordCount_); }

  // The entry as the user reads it: the words of `aWordType` on the first line, the others below,
  // then the comment. Lines are joined by CR LF.
  Text getArticle(TextView aWordType) const;

  // The entry as a block of a glossary file, without the separator line, its words rising inside
  // each word type; `wordTypesDef` names the word types to write, one letter each. Empty when `key`
  // sorts after a word of the first of these types.
  Text articleForFile(TextView wordTypesDef, TextView key) const;

  std::int32_t entryWordCount() const { return entryWordCount_; }

  // Words count from 1.
  TextView entryWord(std::int32_t index) const;
  TextView entryType(std::int32_t index) const;
  TextView entryComment() const;

 private:
  bool isOfType(std::int32_t index, TextView aWordType) const;
  bool nextWordOfType(TextView aWordType, TextView& lastWord) const;
  bool isLowestOfType(TextView aWordType, TextView key) const;
  const Collation& collation() const;

  EntryTexts* texts_ = nullptr;
  std::uint32_t firstText_ = 0;  // in texts_: the words, then the comment
  std::int32_t entryWordCount_ = 0;
  std::int32_t nextWordIndex_ = 0;
};

}  // namespace termvik
