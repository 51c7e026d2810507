#include "common/letters.h"

#include <cstring>
#include <limits>

namespace termvik {

namespace {

constexpr std::size_t kCharacterCount = 0x10000;
constexpr std::size_t kMostLetters = std::numeric_limits<Letter>::max();

}  // namespace

Letters::Letters(const Collator& collator, TextView characters) : table_(kCharacterCount) {
  const Alphabet alphabet(collator, characters);
  if (alphabet.letters().size() > kMostLetters) return;
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

}  // namespace termvik
