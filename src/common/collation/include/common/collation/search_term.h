// SPDX-License-Identifier: MIT
// A term of full search, made ready once to be looked for in many texts.
//
// A term occurs in a text when some stretch of the text's characters equals it: `strasse` occurs in
// `Hauptstraße`, and half of an `ß` is never a hit.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "common/collation/collation.h"
#include "common/system/text.h"

namespace termvik {

class WantedLetters;

using LettersView = std::basic_string_view<Letter>;

// How often each letter stands in the texts to be searched; a hint for speed only.
using LetterCounts = std::array<std::uint32_t, 256>;

class SearchTerm {
 public:
  // `term` is not empty for the collation.
  SearchTerm(const Collation& collation, TextView term, const LetterCounts& counts = {});
  SearchTerm(SearchTerm&&) noexcept;
  ~SearchTerm();

  bool occursIn(TextView text) const;

  // The same for a text whose letters stand ready.
  bool occursIn(TextView text, LettersView letters) const;

  // The letters to look for in texts that have letters; none when no such text has the term.
  const WantedLetters* letters() const { return letters_.get(); }

 private:
  bool occursByCollator(TextView text) const;
  bool equalsStretchNear(TextView text, std::size_t start, std::size_t end) const;

  const Collation* collation_;
  Text term_;
  Letter firstLetter_ = kNoLetter;  // kNoLetter when no known character begins with it
  std::unique_ptr<const WantedLetters> letters_;
};

}  // namespace termvik
