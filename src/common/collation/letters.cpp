// SPDX-License-Identifier: MIT
#include "letters.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace termvik {

namespace {

constexpr std::size_t kMostLetters = std::numeric_limits<Letter>::max();

// The letters of a text of known characters, one after the other.
class LetterWalk {
 public:
  LetterWalk(const Letters& letters, TextView text) : letters_(letters), text_(text) {}

  // kNoLetter after the last.
  Letter next() {
    for (; !text_.empty(); text_.remove_prefix(1), taken_ = 0) {
      const CharacterLetters& entry = letters_.of(text_.front());
      if (taken_ < entry.count) return entry.letters.at(taken_++);
    }
    return kNoLetter;
  }

 private:
  const Letters& letters_;
  TextView text_;
  std::size_t taken_ = 0;  // letters of the first character
};

}  // namespace

Letters::Letters(const Collator& collator, TextView characters) : table_(kCharacterCount) {
  const Alphabet alphabet(collator, characters);
  if (alphabet.letters().size() > kMostLetters) return;
  accentsFromBack_ = alphabet.accentsFromBack();
  for (const char16_t character : alphabet.ignored()) table_[character].count = 0;
  Letter letter = kNoLetter;
  std::uint8_t rank = 0;
  for (const auto& [same, startsRank] : alphabet.letters()) {
    ++letter;
    if (startsRank) ++rank;
    ranks_[letter] = rank;
    for (const char16_t character : same) table_[character] = {{letter}, 1};
  }
  for (const auto& [character, spelling] : alphabet.spelled()) addSpelled(character, spelling);
}

void Letters::addSpelled(char16_t character, TextView spelling) {
  CharacterLetters spelled{{}, 0};
  for (const char16_t part : spelling) {
    if (of(part).count != 1) return;
    spelled.letters.at(spelled.count++) = of(part).letters[0];
  }
  table_[character] = spelled;
}

Letters::Spelling Letters::spell(TextView text, Letter* out) const {
  Letter* next = out;
  unsigned otherThanOne = 0;
  for (const char16_t character : text) {
    const CharacterLetters& entry = of(character);
    if (!entry.known()) return {.known = false, .oneLetterEach = false};
    // Writes more than counts, always as much: quicker than to look how much (bench/full_search).
    std::memcpy(next, &entry, sizeof entry);
    next += entry.count;
    otherThanOne |= entry.count ^ 1U;
  }
  return {.count = static_cast<std::size_t>(next - out), .oneLetterEach = otherThanOne == 0};
}

bool Letters::knowsAll(TextView text) const {
  return std::all_of(text.begin(), text.end(), [this](char16_t c) { return of(c).known(); });
}

std::optional<bool> Letters::same(TextView a, TextView b) const {
  if (!knowsAll(a) || !knowsAll(b)) return std::nullopt;
  LetterWalk lettersOfA(*this, a);
  LetterWalk lettersOfB(*this, b);
  for (;;) {
    const Letter letter = lettersOfA.next();
    if (letter != lettersOfB.next()) return false;
    if (letter == kNoLetter) return true;
  }
}

}  // namespace termvik
