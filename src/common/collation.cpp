#include "common/collation.h"

#include "common/codepage.h"

namespace termvik {

Collation::Collation(const std::string& localeName)
    : collator_(localeName), letters_(collator_, ansiCharacters()) {}

bool Collation::isEmpty(TextView text) const {
  if (text.empty()) return true;
  const CharacterLetters& first = letters_.of(text.front());
  if (first.known() && first.count > 0) return false;
  return textCompare(text, {}) == 0;
}

}  // namespace termvik
