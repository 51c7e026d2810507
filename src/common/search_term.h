// A term of full search, made ready once to be looked for in many texts.
//
// A term occurs in a text when some stretch of the text's characters equals it: `strasse` occurs in
// `Hauptstraße`, and half of an `ß` is never a hit.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "common/collation.h"
#include "common/find_letters.h"
#include "common/text.h"

namespace termvik {

// How often each letter stands in the texts to be searched; a hint for speed only.
using LetterCounts = std::array<std::uint32_t, 256>;

class SearchTerm {
 public:
  static constexpr std::size_t kNotFound = LettersView::npos;

  SearchTerm(const Collation& collation, TextView term, const LetterCounts& counts = {});

  bool occursIn(TextView text) const;

  // The same for a text of known characters, whose letters stand ready.
  bool occursIn(TextView text, LettersView letters) const;

  // The first place where the term's letters stand, kNotFound when there is none. A place can still
  // lie inside a character: occursIn decides.
  std::size_t find(LettersView letters) const;

 private:
  // The first place of the term's letters that `accept` agrees to; it is asked in rising order.
  template <class Accept>
  std::size_t firstPlace(LettersView letters, Accept accept) const;
  template <class Accept>
  std::size_t firstPlaceOfLongTerm(LettersView letters, Accept accept) const;

  bool occursByCollator(TextView text) const;
  bool equalsStretchNear(TextView text, std::size_t start, std::size_t end) const;
  void spell();
  Probes rarestLetters(const LetterCounts& counts) const;
  void prepareLongTerm();

  const Collation* collation_;
  Text term_;
  std::vector<CollationElement> elements_;
  std::optional<std::vector<Letter>> letters_;  // none when no text of known characters has them
  Letter firstLetter_ = kNoLetter;              // kNoLetter when no known character begins with it
  Probes probes_{};
  std::vector<std::size_t> restarts_;  // of a long term: behind each letter, how many of the
                                       // letters up to it are also the term's beginning
};

}  // namespace termvik
