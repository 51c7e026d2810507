// How the program compares words: one order and one equality for the list, the look-up, the search
// and the files.
#pragma once

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
    return a == b || (!beginApart(a, b) && textCompare(a, b) == 0);
  }

  // `text` equals the empty text; one of soft hyphens and control characters does.
  bool isEmpty(TextView text) const;

  const Collator& collator() const { return collator_; }
  const Letters& letters() const { return letters_; }

 private:
  // True when the first characters alone show that the texts differ: the road of the many
  // comparisons with a word type or a mark at the beginning of a line.
  bool beginApart(TextView a, TextView b) const {
    const Letter first = firstLetter(a);
    const Letter other = firstLetter(b);
    return first != kNoLetter && other != kNoLetter && first != other;
  }

  // The letter that a text begins with whatever follows, kNoLetter when that is not sure.
  Letter firstLetter(TextView text) const {
    if (text.empty() || (text.size() > 1 && !letters_.of(text[1]).known())) return kNoLetter;
    const CharacterLetters& first = letters_.of(text[0]);
    return first.known() && first.count > 0 ? first.letters[0] : kNoLetter;
  }

  Collator collator_;
  Letters letters_;
};

}  // namespace termvik
