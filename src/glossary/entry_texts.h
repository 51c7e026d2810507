// The texts of all entries of one glossary, side by side in memory: for each entry its words in
// file order, then its comment.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "common/packed_texts.h"
#include "common/search_term.h"
#include "common/text.h"

namespace termvik {

// The letters of all texts, each text's closed by kNoLetter, so that one pass over bytes searches
// many texts. Made at the first search behind a load.
struct FoldedTexts {
  PackedTexts<Letter> letters;
  std::vector<std::size_t> unknown;  // rising: the texts that have characters without letters
  LetterCounts counts{};
};

class EntryTexts {
 public:
  explicit EntryTexts(const Collation& collation) : collation_(&collation) {}

  const Collation& collation() const { return *collation_; }

  // Makes room for `texts` words and comments of `characters` characters in all.
  void reserve(std::size_t texts, std::size_t characters);

  // Texts count from 0, in the order in which they were added.
  std::size_t size() const { return texts_.size(); }
  void addWord(TextView word, char16_t wordType);
  void addComment(TextView comment);
  TextView text(std::size_t index) const { return texts_[index]; }
  TextView type(std::size_t index) const { return {&types_[index], 1}; }  // of a word

  // The first text from `first` on in which `term` occurs; size() when there is none.
  std::size_t firstWith(const SearchTerm& term, std::size_t first) const;

  // How often each letter stands in the texts.
  const LetterCounts& letterCounts() const;

 private:
  const FoldedTexts& folded() const;
  std::size_t firstKnownWith(const SearchTerm& term, std::size_t first) const;
  LettersView lettersOf(const FoldedTexts& folded, std::size_t index) const;

  const Collation* collation_;
  PackedTexts<char16_t> texts_;
  std::vector<char16_t> types_;  // parallel to texts_
  mutable std::optional<FoldedTexts> folded_;
};

}  // namespace termvik
