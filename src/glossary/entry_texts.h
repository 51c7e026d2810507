// The texts of all entries of one glossary: for each entry its words in file order, then its
// comment. A text lies where the line table has it, in the order of the file.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "common/packed_texts.h"
#include "common/search_term.h"
#include "common/text.h"
#include "common/text_arena.h"

namespace termvik {

// The letters of all texts, each text's closed by kNoLetter, so that one pass over bytes searches
// many texts. Made at the first search behind a load.
struct FoldedTexts {
  PackedTexts<Letter> letters;
  std::vector<std::size_t> unknown;  // rising: the texts that have characters without letters
  std::vector<bool> oneLetterEach;   // by text: no place is inside of a character
  LetterCounts counts{};             // in some of the texts
};

class EntryTexts {
 public:
  explicit EntryTexts(const Collation& collation) : collation_(&collation) {}

  const Collation& collation() const { return *collation_; }

  void reserve(std::size_t texts) { stored_.reserve(texts); }

  // Texts count from 0, in the order in which they were added. What is added is not copied: it must
  // stay as long as the entries, as lines do, or come from `keep`.
  std::size_t size() const { return stored_.size(); }
  void addWord(TextView word, char16_t wordType);
  void addComment(TextView comment) { addWord(comment, u'\0'); }
  TextView keep(TextView text) { return {kept_.add(text), text.size()}; }

  TextView text(std::size_t index) const { return {stored_[index].begin, stored_[index].length}; }
  TextView type(std::size_t index) const { return {&stored_[index].type, 1}; }  // of a word

  // The first text from `first` on in which `term` occurs; size() when there is none.
  std::size_t firstWith(const SearchTerm& term, std::size_t first) const;

  // How often each letter stands in some of the texts.
  const LetterCounts& letterCounts() const;

 private:
  struct Stored {
    const char16_t* begin = nullptr;
    std::uint32_t length = 0;
    char16_t type = u'\0';
  };

  const FoldedTexts& folded() const;
  std::size_t firstKnownWith(const SearchTerm& term, std::size_t first) const;
  LettersView lettersOf(const FoldedTexts& folded, std::size_t index) const;

  const Collation* collation_;
  std::vector<Stored> stored_;
  TextArena<char16_t> kept_;
  mutable std::optional<FoldedTexts> folded_;
};

}  // namespace termvik
