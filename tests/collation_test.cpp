// SPDX-License-Identifier: MIT
// The order and the equality of words, and that the quicker ways to them give the same answers.
#include "common/collation/folded_texts.h"
#include "support/desk.h"

namespace termvik::test {

static std::string relation(const Collation& collation, TextView a, TextView b) {
  const int order = collation.textCompare(a, b);
  return order < 0 ? "<" : order > 0 ? ">" : "=";
}

TEST(Collation, OrdersWordsForASwedishReader) {
  struct Case {
    Text a;
    std::string relation;
    Text b;
  };
  const std::array cases = {
      // å, ä and ö are letters after z; v and w are two.
      Case{u"z", "<", u"å"},
      Case{u"å", "<", u"ä"},
      Case{u"ä", "<", u"ö"},
      Case{u"åz", "<", u"äa"},
      Case{u"vz", "<", u"wa"},
      // Case never counts.
      Case{u"Bit", "=", u"bIT"},
      Case{u"Ö", "=", u"ö"},
      Case{u"É", "=", u"é"},
      // Accents do, where all letters are the same.
      Case{u"e", "<", u"é"},
      Case{u"ea", "<", u"éa"},
      Case{u"éa", "<", u"eb"},
      Case{u"o", "<", u"ô"},
      Case{u"ôa", "<", u"ob"},
      Case{u"Ô", "=", u"ô"},
      // One character of several letters.
      Case{u"Straße", "=", u"STRASSE"},
      Case{u"ẞ", "=", u"ss"},
      Case{u"æ", "=", u"AE"},
      Case{u"Œ", "=", u"oe"},
      // Blanks, hyphens and digits come before letters and count like them.
      Case{u"co", "<", u"co "},
      Case{u"co", "<", u"co-"},
      Case{u"co op", "<", u"coa"},
      Case{u"co-op", "<", u"coa"},
      Case{u"10", "<", u"a"},
      // A soft hyphen is nothing.
      Case{u"", "<", u"a"},
      Case{u"", "=", u"\u00AD"},
      Case{u"co\u00ADop", "=", u"coop"},
  };
  for (const Case& given : cases) {
    EXPECT_EQ(relation(swedish(), given.a, given.b), given.relation)
        << toUtf8(given.a) << " | " << toUtf8(given.b);
  }
}

TEST(Collation, IsSwedishWhereTheUserHasNoLocale) {
  for (const char* name : {"", "C", "POSIX", "C.UTF-8", "sv_SE.UTF-8"}) {
    EXPECT_EQ(relation(Collation(name), u"z", u"ö"), "<") << name;
  }
  EXPECT_EQ(relation(Collation("de_DE.UTF-8"), u"z", u"ö"), ">");
}

// In Swedish nearly every character is a letter of its own; in Danish `aa` is one letter, so that
// no text with an `a` can be taken letter by letter; in Canadian French, where the last accent of a
// word counts most, no text at all.
struct EveryRoad : testing::TestWithParam<const char*> {
  Collation collation{GetParam()};
  Dice dice{2};
};

INSTANTIATE_TEST_SUITE_P(Locales, EveryRoad, testing::Values("sv_SE", "da_DK", "fr_CA"));

TEST_P(EveryRoad, GivesOneConsistentOrder) {
  for (int round = 0; round < 20000; ++round) {
    std::array<Text, 3> t = {dice.anyText(4), dice.anyText(4), dice.anyText(4)};
    std::sort(t.begin(), t.end(),
              [this](const Text& a, const Text& b) { return collation.textCompare(a, b) < 0; });
    const std::string trace = toUtf8(t[0]) + " | " + toUtf8(t[1]) + " | " + toUtf8(t[2]);
    const std::string both = relation(collation, t[0], t[1]) + relation(collation, t[1], t[2]);
    ASSERT_EQ(both.find('>'), std::string::npos) << trace;
    ASSERT_EQ(relation(collation, t[0], t[2]), both == "==" ? "=" : "<") << trace;
    ASSERT_EQ(relation(collation, t[2], t[0]), both == "==" ? "=" : ">") << trace;
    ASSERT_EQ(collation.equal(t[0], t[1]), both[0] == '=') << trace;
    ASSERT_EQ(collation.isEmpty(t[0]), relation(collation, t[0], u"") == "=") << trace;
  }
}

TEST_P(EveryRoad, FindsATermWhereAStretchOfTheTextEqualsIt) {
  for (int round = 0; round < 20000; ++round) {
    const bool isLong = round % 100 == 0;
    std::array<Text, 3> texts;
    for (Text& text : texts) text = isLong ? dice.text(u"abBß", 150) : dice.anyText(7);
    Text term = dice.oneOf(texts);
    term = term.substr(dice.below(term.size() + 1)).substr(0, 1 + dice.below(isLong ? 140 : 7));
    for (char16_t& c : term) {
      if (dice.below(isLong ? 200 : 12) == 0) c = dice.oneOf(Dice::kHard);
      if (c >= u'a' && c <= u'z' && dice.below(2) == 0) c = static_cast<char16_t>(c - 32);
    }
    if (collation.isEmpty(term)) continue;
    const SearchTerm search(collation, term);
    Text stretch;
    LargeVector<TextRange> ranges;
    std::vector<std::size_t> expected;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      if (occursPlainly(collation, term, texts[i])) expected.push_back(i);
      EXPECT_EQ(search.occursIn(texts[i]), !expected.empty() && expected.back() == i)
          << toUtf8(term) << " in " << toUtf8(texts[i]);
      stretch += dice.text(Dice::kHard, 3);  // what lies between two texts is never searched
      ranges.push_back({static_cast<std::uint32_t>(stretch.size()),
                        static_cast<std::uint32_t>(texts[i].size())});
      stretch += texts[i];
    }
    const FoldedTexts folded(collation, stretch, ranges);
    TermWalk walk(folded, term);
    std::vector<std::size_t> found;
    for (std::size_t i = walk.next(0); i < texts.size(); i = walk.next(i + 1)) found.push_back(i);
    ASSERT_EQ(found, expected) << toUtf8(term) << " in " << toUtf8(stretch);
  }
}

TEST(CodePage, GivesEveryByteACharacterAndTakesItBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  const Text text = decodeAnsi(bytes);
  EXPECT_EQ(text.substr(0x7E, 36),
            u"~\u007F€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0¡");
  EXPECT_EQ(text.substr(0xC5, 2) + text.substr(0xFF), u"ÅÆÿ");
  EXPECT_EQ(encodeAnsi(text), bytes);
  EXPECT_EQ(encodeAnsi(u"aл\u0080\xD83D\xDE00å"), "a????\xE5");
}

// In Hungarian `ty` is a letter of its own, so that `t` depends on its neighbour.
TEST(Collation, TakesASignForSeveralLettersWhereOneOfThemDependsOnItsNeighbour) {
  const Collation hungarian("hu_HU");
  EXPECT_FALSE(SearchTerm(hungarian, u"taa").occursIn(u"™aa"));
  const bool isLetters = hungarian.equal(u"™", u"tm");  // to Wine it is a sign and no letter
  EXPECT_EQ(SearchTerm(hungarian, u"tma").occursIn(u"™aa"), isLetters);
}

}  // namespace termvik::test
