// One glossary entry: the words of one concept, each with a word type that stands for its language,
// and an optional comment.
#pragma once

#include <cstdint>

#include "common/text.h"
#include "glossary/entry_texts.h"
#include "glossary/line_table.h"
#include "glossary/search_run.h"

namespace termvik {

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

  // True when one of the terms of `search` occurs in a word of any language or in the comment.
  // `key` is then the word to list: the one that has the first such term, or, for a hit in the
  // comment, the entry's first word of `aWordType`, or its first word of all.
  bool getGlossaryWordIfSearchedFor(TextView aWordType, SearchRun& search, TextView& key) const {
    const auto comment = firstText_ + static_cast<std::size_t>(entryWordCount_);
    const auto hit = search.firstHit(*texts_, firstText_, comment + 1);
    if (!hit) return false;
    key = *hit == comment ? wordForCommentHit(aWordType) : texts_->text(*hit);
    return true;
  }

  // For walks from hit to hit: the next text from the entry's first on in which a term can occur,
  // and whether all texts of the entry lie before a text.
  std::size_t nextCandidate(SearchRun& search) const {
    return search.nextCandidate(*texts_, firstText_);
  }
  bool liesBefore(std::size_t text) const {
    return firstText_ + static_cast<std::size_t>(entryWordCount_) < text;
  }

  // The entry as the user reads it: the words of `aWordType` on the first line, the others below,
  // then the comment. Lines are joined by CR LF.
  Text getArticle(TextView aWordType) const;

  // The entry as a block of a glossary file, without the separator line, its words rising inside
  // each word type; `wordTypesDef` names the word types to write, one letter each. Empty when `key`
  // sorts behind a word of the first of these types.
  Text articleForFile(TextView wordTypesDef, TextView key) const;

  std::int32_t entryWordCount() const { return entryWordCount_; }

  // Words count from 1.
  TextView entryWord(std::int32_t index) const;
  TextView entryType(std::int32_t index) const;
  TextView entryComment() const;

 private:
  struct Range {
    std::int32_t first = 0;
    std::int32_t last = 0;
  };

  static bool findRange(const LineTable& arr, Range& range);
  void store(const LineTable& arr, const Range& range);
  bool isOfType(std::int32_t index, TextView aWordType) const;
  TextView wordForCommentHit(TextView aWordType) const;
  bool nextWordOfType(TextView aWordType, TextView& lastWord) const;
  bool isLowestOfType(TextView aWordType, TextView key) const;
  const Collation& collation() const { return texts_->collation(); }

  EntryTexts* texts_ = nullptr;
  std::uint32_t firstText_ = 0;  // in texts_: the words, then the comment
  std::int32_t entryWordCount_ = 0;
  std::int32_t nextWordIndex_ = 0;
};

}  // namespace termvik
