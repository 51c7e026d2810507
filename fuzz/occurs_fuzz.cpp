// SPDX-License-Identifier: MIT
// "Occurs in" against all stretches of the texts: the term alone, and on its way through many
// texts.
#include <algorithm>
#include <vector>

#include "collator.h"
#include "common/collation/folded_texts.h"
#include "input.h"
#include "plain_program.h"

namespace termvik::fuzz {

namespace {

constexpr std::size_t kLongestTerm = 12;
constexpr std::size_t kLongestText = 40;

// The texts one after the other, as a glossary has them.
struct Texts {
  Text characters;
  LargeVector<TextRange> ranges;

  void add(TextView text) {
    ranges.push_back(
        {static_cast<std::uint32_t>(characters.size()), static_cast<std::uint32_t>(text.size())});
    characters.append(text).append(kLineEnd);
  }
  TextView at(std::size_t i) const {
    return TextView(characters).substr(ranges[i].begin, ranges[i].length);
  }
};

}  // namespace

void fuzz(Input& input) {
  const Collation& collation = input.collation();
  const bool isAlone = input.below(8) > 0;  // to make many texts ready takes long
  const Text term = input.text(kLongestTerm);
  if (collation.collator().compare(term, {}) == 0) return;
  Texts texts;
  while (!input.isUsedUp()) texts.add(input.text(kLongestText));
  const SearchTerm searched(collation, term);
  std::vector<bool> occurs;
  for (std::size_t i = 0; i < texts.ranges.size(); ++i) {
    occurs.push_back(occursPlainly(collation.collator(), term, texts.at(i)));
    expect(searched.occursIn(texts.at(i)) == occurs.back(), "a term occurs in a text",
           {term, texts.at(i)});
  }
  if (isAlone) return;
  const FoldedTexts folded(collation, texts.characters, texts.ranges);
  TermWalk walk(folded, term);
  for (std::size_t i = 0; i < occurs.size(); ++i) {
    expect((walk.next(i) == i) == occurs[i], "a walk of a term stops at a text",
           {term, texts.at(i)});
  }
}

}  // namespace termvik::fuzz
