#include "common/collation.h"

#include "common/codepage.h"

namespace termvik {

Collation::Collation(const std::string& localeName)
    : collator_(localeName), letters_(collator_, ansiCharacters()) {}

bool Collation::isEmpty(TextView text) const {
  if (text.empty()) return true;
  const CharacterLetters& first = letters_.of(text.front());
  if (first.known() && first.count > 0) return false;
  return haveSameLetters(text, {});
}

// Without the collator where that can be: to make one takes longer than all else at the start
// (bench/start).
bool Collation::haveSameLetters(TextView a, TextView b) const {
  const auto same = letters_.same(a, b);
  return same ? *same : textCompare(a, b) == 0;
}

}  // namespace termvik
