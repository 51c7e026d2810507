// SPDX-License-Identifier: MIT
// How the program compares words: one order and one equality for the list, the look-up, the search
// and the files.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "common/system/text.h"

namespace termvik {

class Collator;
class Letters;

// A letter is what two characters have in common when they are equal: `a` and `A` are one letter,
// `å` is another, `æ` is the letters `a` `e`, a soft hyphen is no letter at all.
using Letter = std::uint8_t;

inline constexpr Letter kNoLetter = 0;  // ends or separates letters; never a letter itself

class Collation {
 public:
  // `localeName` as the platform writes it ("sv_SE"); "C", "POSIX" and "" stand for Swedish, and so
  // does a name that the platform does not know how to collate.
  explicit Collation(const std::string& localeName);
  ~Collation();
  Collation(const Collation&) = delete;
  Collation& operator=(const Collation&) = delete;

  // Negative, 0 or positive as `a` sorts before, equal to or after `b`. Case never counts, accents
  // do.
  int textCompare(TextView a, TextView b) const;

  // `a` and `b` are the same word.
  bool equal(TextView a, TextView b) const {
    return a == b || (!beginApart(a, b) && haveSameLetters(a, b));
  }

  // `text` equals the empty text; one of soft hyphens and control characters does.
  bool isEmpty(TextView text) const {
    return text.empty() || (!isSureLetter(text.front()) && haveSameLetters(text, {}));
  }

  // The letter that a text begins with, whatever follows; none when that is not sure.
  std::optional<Letter> firstLetter(TextView text) const {
    if (text.empty() || !isSureLetter(text[0])) return std::nullopt;
    if (text.size() > 1 && !isSureLetter(text[1])) return std::nullopt;
    return firstLetters_[text[0]];
  }

  // For this folder's own files.
  const Collator& collator() const { return *collator_; }
  const Letters& letters() const { return *letters_; }

 private:
  bool isSureLetter(char16_t character) const { return firstLetters_[character] != kNoLetter; }

  // True when the first characters alone show that the texts differ: the way of the many
  // comparisons with a word type or a mark at the beginning of a line.
  bool beginApart(TextView a, TextView b) const {
    const auto first = firstLetter(a);
    const auto other = firstLetter(b);
    return first && other && *first != *other;
  }

  bool haveSameLetters(TextView a, TextView b) const;

  std::unique_ptr<const Collator> collator_;
  std::unique_ptr<const Letters> letters_;
  std::vector<Letter> firstLetters_;  // by character: the first of its letters
};

// The name of the user's locale for collation, "" when the user has none.
std::string userLocaleName();

}  // namespace termvik
