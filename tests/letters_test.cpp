// SPDX-License-Identifier: MIT
// The letters of characters, and the search for letters, held against what takes longer.
#include "letters.h"

#include <algorithm>

#include "find_letters.h"
#include "support/desk.h"

namespace termvik::test {

struct LettersOf : testing::TestWithParam<const char*> {
  // The order of two texts of known characters by their letters alone.
  int order(TextView a, TextView b) const {
    const auto spelled = [this](TextView text) {
      std::vector<Letter> letters(Letters::roomFor(text));
      letters.resize(collation.letters().spell(text, letters.data()).count);
      std::vector<int> ranks(letters.size());
      std::transform(letters.begin(), letters.end(), ranks.begin(),
                     [this](Letter letter) { return collation.letters().rank(letter); });
      if (collation.letters().accentsFromBack()) std::reverse(letters.begin(), letters.end());
      return std::pair(ranks, letters);
    };
    const auto left = spelled(a);
    const auto right = spelled(b);
    return left < right ? -1 : left == right ? 0 : 1;
  }

  void expectSameOrder(TextView a, TextView b) const {
    const int judged = collation.textCompare(a, b);
    ASSERT_EQ(order(a, b), judged < 0 ? -1 : judged > 0 ? 1 : 0) << toUtf8(a) << " | " << toUtf8(b);
    ASSERT_EQ(collation.letters().same(a, b), judged == 0) << toUtf8(a) << " | " << toUtf8(b);
  }

  Text knownCharacters() const {
    Text known;
    for (const char16_t c : ansiCharacters()) {
      if (collation.letters().of(c).known()) known += c;
    }
    return known;
  }

  Collation collation{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Locales, LettersOf,
                         testing::Values("sv_SE", "da_DK", "de_DE", "fr_FR", "fr_CA", "cs_CZ",
                                         "br_FR", "es_ES", "hu_HU"));

TEST_P(LettersOf, StandInTheCollatorsOrderWithEachOther) {
  const Text known = knownCharacters();
  for (const char16_t& a : known) {
    for (const char16_t& b : known) ASSERT_NO_FATAL_FAILURE(expectSameOrder({&a, 1}, {&b, 1}));
  }
  Dice dice(5);
  for (int round = 0; !known.empty() && round < 20000; ++round) {
    const Text common = dice.text(known, 2);
    ASSERT_NO_FATAL_FAILURE(
        expectSameOrder(common + dice.text(known, 3), common + dice.text(known, 3)));
  }
}

TEST(Letters, AreKnownOfAllThatWordsAreMadeOf) {
  for (const char* locale : {"sv_SE", "de_DE", "en_GB", "fr_FR", "fr_CA"}) {
    const Collation collation(locale);
    for (const char16_t c :
         TextView(u"aBcdefghijklmnopqrstuvwxyzÅåäöéèêëàâçîïôûüÿœæß -'.,()/0189\u00AD")) {
      EXPECT_TRUE(collation.letters().of(c).known()) << locale << toUtf8({&c, 1});
    }
  }
}

using Bytes = std::basic_string<Letter>;

struct WantedLettersIn : testing::Test {
  Bytes letters(std::size_t count, std::size_t kinds) {
    Bytes bytes;
    for (; count > 0; --count) bytes += static_cast<Letter>(1 + dice.below(kinds));
    return bytes;
  }

  // The first place that is not refused, as the standard library finds it.
  void expectSamePlace(const Bytes& text, const Bytes& wanted) {
    const auto accept = [&](std::size_t place) { return (place + wanted.size()) % 3 == 0; };
    std::size_t expected = text.find(wanted);
    while (expected != Bytes::npos && !accept(expected)) expected = text.find(wanted, expected + 1);
    LetterCounts counts{};
    for (const Letter letter : letters(9, 5)) ++counts.at(letter);
    const WantedLetters search({wanted.begin(), wanted.end()}, counts);
    ASSERT_EQ(search.findIn(text, accept), expected) << wanted.size() << " in " << text.size();
  }

  Dice dice{6};
};

TEST_F(WantedLettersIn, TextsOfAnyLengthAreFoundAtTheFirstPlace) {
  for (int round = 0; round < 20000; ++round) {
    expectSamePlace(letters(dice.below(300), 4), letters(1 + dice.below(6), 4));
  }
}

// A text that repeats itself, so that a refused place and the next one overlap.
TEST_F(WantedLettersIn, APeriodicTextAreFoundWhereTheyAreManyToo) {
  for (int round = 0; round < 5000; ++round) {
    const Bytes period = letters(1 + dice.below(9), 2);
    Bytes text;
    while (text.size() < 300) text += period;
    if (round % 2 == 0) text[dice.below(text.size())] = 3;
    expectSamePlace(text, text.substr(dice.below(100), 60 + dice.below(80)));
  }
}

}  // namespace termvik::test
