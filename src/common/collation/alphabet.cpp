// SPDX-License-Identifier: MIT
#include "alphabet.h"

#include <algorithm>

namespace termvik {

Alphabet::Alphabet(const Collator& collator, TextView characters) : collator_(collator) {
  if (!collator_.comparesByElements()) return;
  divide(standing(characters));
  accentsFromBack_ = !letterByLetter(false);
  if (!accentsFromBack_ || letterByLetter(true)) {
    tailor();
  } else {
    letters_.clear();
    spelled_.clear();
    ignored_.clear();
  }
}

// Those that are a letter or more, rising, whether they depend on their neighbours or not. An
// accent that stands by itself is none of the kinds.
Text Alphabet::standing(TextView characters) {
  elsewhere_ = collator_.contextCharacters(characters);
  for (const Tailoring& tailoring : collator_.tailorings()) elsewhere_ += tailoring.characters;
  Text standing;
  for (const char16_t character : characters) {
    const TextView text(&character, 1);
    if (order(text, {}, Strength::Letters) != 0) standing += character;
    if (isElsewhere(character)) continue;
    if (order(text, {}, Strength::Accents) == 0) ignored_ += character;
  }
  std::sort(standing.begin(), standing.end(), [this](char16_t a, char16_t b) {
    return order({&a, 1}, {&b, 1}, Strength::Accents) < 0;
  });
  return standing;
}

// A character is several letters when it comes after a letter and yet before that letter followed
// by the last of all: `æ` comes after `a` and before `aö`, so it begins with the letter `a`. A
// letter that depends on its neighbours can be the first of them: `t` does in Hungarian, where `ty`
// is a letter, and yet `™` is `t` and `m`.
void Alphabet::divide(const Text& standing) {
  Text several;
  Text before;
  for (const char16_t character : standing) {
    const TextView text(&character, 1);
    const bool isSeveral = !before.empty() && order(before, text, Strength::Letters) < 0 &&
                           order(before + standing.back(), text, Strength::Letters) >= 0;
    if (isSeveral) {
      if (!isElsewhere(character)) several += character;
    } else if (isElsewhere(character)) {
      before = text;
    } else {
      addLetter(character);
      before = letters_.back().characters.substr(0, 1);
    }
  }
  for (const char16_t character : several) {
    const Text same = spelling(character);
    if (!same.empty()) spelled_.emplace_back(character, same);
  }
}

void Alphabet::addLetter(char16_t character) {
  const TextView text(&character, 1);
  const auto differs = [&](Strength strength) {
    return letters_.empty() ||
           order(TextView(letters_.back().characters).substr(0, 1), text, strength) != 0;
  };
  if (differs(Strength::Accents)) {
    letters_.push_back({Text(text), differs(Strength::Letters)});
  } else {
    letters_.back().characters += character;
  }
}

// The letters of a character: each time the last one that does not lead past it. Of `æ` the first
// is `a`, as `b` comes after `æ`; then `ae`, as `af` does.
Text Alphabet::spelling(char16_t character) const {
  const TextView text(&character, 1);
  Text spelling;
  while (spelling.size() < kLongestSpelling) {
    const auto behind =
        std::partition_point(letters_.begin(), letters_.end(), [&](const Group& letter) {
          return order(spelling + letter.characters[0], text, Strength::Letters) <= 0;
        });
    if (behind == letters_.begin()) break;
    auto plain = std::prev(behind);
    while (!plain->startsRank) --plain;
    spelling += plain->characters[0];
    if (order(spelling, text, Strength::Letters) != 0) continue;
    return order(spelling, text, Strength::Accents) == 0 ? spelling : Text();
  }
  return {};
}

// An accent has to outweigh whatever accent may follow it, so that `eá` comes before `éa`,
// or else, as in Canadian French, whatever may stand before it: `éa` before `eá`.
bool Alphabet::letterByLetter(bool fromBack) const {
  const auto orderOfPairs = [this](TextView a, TextView b, TextView c, TextView d) {
    return order(Text(a).append(b), Text(c).append(d), Strength::Accents);
  };
  std::vector<std::pair<TextView, TextView>> extremes;  // the plain and the last letter of a rank
  for (const Group& letter : letters_) {
    const TextView first = TextView(letter.characters).substr(0, 1);
    if (letter.startsRank) extremes.emplace_back(first, first);
    extremes.back().second = first;
  }
  for (std::size_t i = 1; i < letters_.size(); ++i) {
    if (letters_[i].startsRank) continue;
    for (const auto& [plain, last] : extremes) {
      const TextView lower = TextView(letters_[i - 1].characters).substr(0, 1);
      const TextView upper = TextView(letters_[i].characters).substr(0, 1);
      const int decided = fromBack ? orderOfPairs(last, lower, plain, upper)
                                   : orderOfPairs(lower, last, upper, plain);
      if (decided >= 0) return false;
    }
  }
  return true;
}

void Alphabet::tailor() {
  for (const Tailoring& tailoring : collator_.tailorings()) {
    if (!tailoring.accented) {
      for (const char16_t c : tailoring.characters) spelled_.emplace_back(c, tailoring.base);
      continue;
    }
    auto base = std::find_if(letters_.begin(), letters_.end(), [&](const Group& letter) {
      return letter.characters.find(tailoring.base) != Text::npos;
    });
    if (base == letters_.end()) continue;
    for (++base; base != letters_.end() && !base->startsRank;) ++base;
    letters_.insert(base, {Text(tailoring.characters), false});
  }
}

}  // namespace termvik
