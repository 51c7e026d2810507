// SPDX-License-Identifier: MIT
// From the collator's elements back to letters, for texts that are not made of known characters.
#pragma once

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "collator.h"
#include "letters.h"

namespace termvik {

class LetterWeights {
 public:
  LetterWeights(const Collator& collator, const Letters& letters, TextView characters);

  // The letter that consists of these elements of a text, kNoLetter when no known character does.
  // `next` comes in as the index of the first element and goes to the one after the letter.
  Letter letterAt(const std::vector<CollationElement>& elements, std::size_t& next) const;

 private:
  // A letter's primary weight and all its secondary weights: accents that stand after a letter's
  // first element belong to that letter.
  using Weights = std::pair<std::uint32_t, std::vector<std::uint32_t>>;

  static Weights weightsAt(const std::vector<CollationElement>& elements, std::size_t& next);

  std::map<Weights, Letter> letters_;
};

}  // namespace termvik
