// SPDX-License-Identifier: MIT
#include "common/collation/collation.h"

#include "collator.h"
#include "common/system/codepage.h"
#include "letters.h"

namespace termvik {

Collation::Collation(const std::string& localeName)
    : collator_(std::make_unique<Collator>(localeName)),
      letters_(std::make_unique<Letters>(*collator_, ansiCharacters())),
      firstLetters_(Letters::kCharacterCount, kNoLetter) {
  for (const char16_t character : ansiCharacters()) {
    const CharacterLetters& letters = letters_->of(character);
    if (letters.known()) firstLetters_[character] = letters.letters[0];
  }
}

Collation::~Collation() = default;

int Collation::textCompare(TextView a, TextView b) const { return collator_->compare(a, b); }

// Without the collator where that can be: to make one takes longer than all else at the start
// (bench/start).
bool Collation::haveSameLetters(TextView a, TextView b) const {
  const auto same = letters_->same(a, b);
  return same ? *same : textCompare(a, b) == 0;
}

}  // namespace termvik
