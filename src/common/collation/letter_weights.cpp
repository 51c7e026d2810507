// SPDX-License-Identifier: MIT
#include "letter_weights.h"

namespace termvik {

LetterWeights::LetterWeights(const Collator& collator, const Letters& letters,
                             TextView characters) {
  for (const char16_t character : characters) {
    if (letters.of(character).count != 1) continue;
    const auto elements = collator.elements({&character, 1});
    std::size_t next = 0;
    letters_.emplace(weightsAt(elements, next), letters.of(character).letters[0]);
  }
}

Letter LetterWeights::letterAt(const std::vector<CollationElement>& elements,
                               std::size_t& next) const {
  const auto found = letters_.find(weightsAt(elements, next));
  return found == letters_.end() ? kNoLetter : found->second;
}

LetterWeights::Weights LetterWeights::weightsAt(const std::vector<CollationElement>& elements,
                                                std::size_t& next) {
  Weights weights{elements[next].primary, {elements[next].secondary}};
  for (++next; next < elements.size() && elements[next].primary == 0; ++next) {
    weights.second.push_back(elements[next].secondary);
  }
  return weights;
}

}  // namespace termvik
