// SPDX-License-Identifier: MIT
// The letters that the program's texts are made of: for every character that a file can hold, what
// the collator makes of it, computed once, so that long walks over texts are walks over bytes.
//
// Two texts of known characters are equal exactly when their letters are the same, and their order
// is that of the letters' ranks, then of the letters themselves, from the front or from the back.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "alphabet.h"
#include "collator.h"
#include "common/collation/collation.h"
#include "common/system/text.h"

namespace termvik {

// The letters of one character.
struct CharacterLetters {
  static constexpr std::size_t kMost = Alphabet::kLongestSpelling;
  static constexpr std::uint8_t kUnknown = 0xFF;

  std::array<Letter, kMost> letters{};
  std::uint8_t count = kUnknown;

  bool known() const { return count != kUnknown; }
};

class Letters {
 public:
  static constexpr std::size_t kCharacterCount = 0x10000;

  // A character is known when it is in `characters` and the collator treats it alike wherever it
  // stands. Where the collator's order does not follow from letters, none is known.
  Letters(const Collator& collator, TextView characters);

  const CharacterLetters& of(char16_t character) const { return table_[character]; }

  struct Spelling {
    std::size_t count = 0;      // letters
    bool known = true;          // false: a character of the text is not known
    bool oneLetterEach = true;  // every character is one letter
  };

  // Writes the letters of a known text to `out`, which has roomFor(text).
  Spelling spell(TextView text, Letter* out) const;
  static std::size_t roomFor(TextView text) {
    return text.size() * CharacterLetters::kMost + sizeof(CharacterLetters);
  }

  // Whether two texts have the same letters; nothing when a character of theirs is not known.
  std::optional<bool> same(TextView a, TextView b) const;

  // The place of a letter in the order, accents left out: 1 to 255.
  std::uint8_t rank(Letter letter) const { return ranks_[letter]; }

  // Of texts whose letters have the same ranks, the last letter that differs decides.
  bool accentsFromBack() const { return accentsFromBack_; }

  // True for the first of all letters of its rank, the one without an accent.
  bool isPlain(Letter letter) const { return rank(letter) != rank(letter - 1); }

 private:
  bool knowsAll(TextView text) const;
  void addSpelled(char16_t character, TextView spelling);

  bool accentsFromBack_ = false;
  std::array<std::uint8_t, 256> ranks_{};
  std::vector<CharacterLetters> table_;  // by character
};

}  // namespace termvik
