// SPDX-License-Identifier: MIT
// What the collator's order says of single characters, found out by comparing: which of them are
// one letter, which are several, and how the letters follow one another.
#pragma once

#include <utility>
#include <vector>

#include "collator.h"
#include "common/system/text.h"

namespace termvik {

class Alphabet {
 public:
  struct Group {
    Text characters;          // that are one and the same letter
    bool startsRank = false;  // that letter is more than an accent away from the one before
  };

  // No character of a code page is more letters than this.
  static constexpr std::size_t kLongestSpelling = 3;

  // Of `characters`, those that are collated alike wherever they stand. No letters where the
  // collator's order does not follow from single letters.
  Alphabet(const Collator& collator, TextView characters);

  // Rising.
  const std::vector<Group>& letters() const { return letters_; }

  // Of words with the same letters but for their accents, the last difference decides.
  bool accentsFromBack() const { return accentsFromBack_; }

  // Characters that are no letter at all.
  const Text& ignored() const { return ignored_; }

  // Characters that are several letters, each with a text of the same letters.
  const std::vector<std::pair<char16_t, Text>>& spelled() const { return spelled_; }

 private:
  using Strength = Collator::Strength;

  int order(TextView a, TextView b, Strength strength) const {
    return collator_.compareUntailored(a, b, strength);
  }
  Text standing(TextView characters);
  // It depends on its neighbours or has another place than in the locale's own order.
  bool isElsewhere(char16_t character) const { return elsewhere_.find(character) != Text::npos; }
  void divide(const Text& standing);
  void addLetter(char16_t character);
  Text spelling(char16_t character) const;
  bool letterByLetter(bool fromBack) const;
  void tailor();

  const Collator& collator_;
  std::vector<Group> letters_;
  bool accentsFromBack_ = false;
  Text ignored_;
  Text elsewhere_;
  std::vector<std::pair<char16_t, Text>> spelled_;
};

}  // namespace termvik
