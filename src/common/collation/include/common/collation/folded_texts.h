// SPDX-License-Identifier: MIT
// Many texts made ready for full search: their letters, one byte each, so that one pass over bytes
// looks for a term in all of them.
//
// The texts are ranges of one long stretch of characters. Each character gives one byte, its
// letter; one that is not exactly one letter gives kNoLetter, and a text with such characters
// (`Straße`) is spelled out a second time by itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "common/collation/collation.h"
#include "common/collation/search_term.h"
#include "common/system/large_vector.h"
#include "common/system/text.h"

namespace termvik {

struct TextRange {
  std::uint32_t begin = 0;
  std::uint32_t length = 0;

  std::uint32_t end() const { return begin + length; }
};

class FoldedTexts {
 public:
  // `texts` are ranges of `characters`, rising. Both must stay where they are.
  FoldedTexts(const Collation& collation, TextView characters, const LargeVector<TextRange>& texts);

  std::size_t size() const { return texts_->size(); }

 private:
  friend class TermWalk;

  // A text with characters that are not one letter each, spelled out.
  struct Spelled {
    std::size_t index = 0;
    std::size_t begin = 0;  // of its letters in spelledLetters_
    std::size_t count = 0;
  };

  void spellOthers(std::size_t begin, std::size_t end, std::size_t& text);
  void spell(std::size_t index);
  TextView text(std::size_t index) const;
  std::size_t textAt(std::size_t place, std::size_t from) const;

  // The first text from `from` on in which the term occurs, of all texts that are looked through in
  // one way; size() when there is none.
  std::size_t nextInStretch(const SearchTerm& term, std::size_t from) const;
  std::size_t nextSpelled(const SearchTerm& term, std::size_t from) const;
  std::size_t nextUnknown(const SearchTerm& term, std::size_t from) const;

  const Collation* collation_;
  TextView characters_;
  const LargeVector<TextRange>* texts_;
  LargeVector<Letter> letters_;         // by character
  LetterCounts counts_{};               // in some of the texts
  std::vector<Spelled> spelled_;        // rising
  std::vector<Letter> spelledLetters_;  // each text's closed by kNoLetter
  std::vector<std::size_t> unknown_;    // rising: the texts with a character that has no letters
};

// The way of a term from one text that it occurs in to the next: one pass through all of them.
class TermWalk {
 public:
  // `term` as in SearchTerm.
  TermWalk(const FoldedTexts& texts, TextView term);

  // The first text from `from` on in which the term occurs; the number of texts when there is none.
  // `from` must not go back.
  std::size_t next(std::size_t from);

  // What `next` has given last; the very first one at first.
  std::size_t hit() const;

 private:
  const FoldedTexts* texts_;
  SearchTerm term_;
  std::size_t inStretch_;  // the next text by each way
  std::size_t spelled_;
  std::size_t unknown_;
};

}  // namespace termvik
