// How the program compares words: one order and one equality for the list, the look-up, the search
// and the files.
#pragma once

#include <optional>
#include <string>

#include "common/collator.h"
#include "common/letters.h"
#include "common/text.h"

namespace termvik {

class Collation {
 public:
  // `localeName` as in Collator.
  explicit Collation(const std::string& localeName);

  // Negative, 0 or positive as `a` sorts before, equal to or after `b`. Case never counts, accents
  // do.
  int textCompare(TextView a, TextView b) const { return collator_.compare(a, b); }

  // `a` and `b` are the same word.
  bool equal(TextView a, TextView b) const {
    return a == b || (!beginApart(a, b) && haveSameLetters(a, b));
  }

  // `text` equals the empty text; one of soft hyphens and control characters does.
  bool isEmpty(TextView text) const;

  const Collator& collator() const { return collator_; }
  const Letters& letters() const { return letters_; }

  // The letter that a text begins with, whatever follows; none when that is not sure.
  std::optional<Letter> firstLetter(TextView text) const {
    if (text.empty() || !isSureLetter(text[0])) return std::nullopt;
    if (text.size() > 1 && !isSureLetter(text[1])) return std::nullopt;
    return letters_.of(text[0]).letters[0];
  }

 private:
  bool isSureLetter(char16_t character) const {
    const CharacterLetters& letters = letters_.of(character);
    return letters.known() && letters.count > 0;
  }

  // True when the first characters alone show that the texts differ: the road of the many
  // comparisons with a word type or a mark at the beginning of a line.
  bool beginApart(TextView a, TextView b) const {
    const auto first = firstLetter(a);
    const auto other = firstLetter(b);
    return first && other && *first != *other;
  }

  bool haveSameLetters(TextView a, TextView b) const;

  Collator collator_;
  Letters letters_;
};

}  // namespace termvik
