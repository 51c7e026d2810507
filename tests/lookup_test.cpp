// SPDX-License-Identifier: MIT
// The search box: look-up in the list, the keys that the box must not see, and full search.
#include "lookup/search_words.h"
#include "support/desk.h"

namespace termvik::test {

struct LookUp : Desk {};

TEST_F(LookUp, KeepsTheArrowsAndEnterFromTheBox) {
  open("S: a/b");
  for (std::int16_t code = 1; code < 100; ++code) {
    std::int16_t key = code;
    std::int16_t character = code;
    search().KeyDown(key);
    search().KeyPress(character);
    EXPECT_EQ(key, code == keys::kUp || code == keys::kDown ? 0 : code);
    EXPECT_EQ(character, code == keys::kEnter ? 0 : code);
  }
}

TEST_F(LookUp, SaysOnlySoMuchOfALongRowAndArticle) {
  open("S: a" + std::string(100'000, 'x') + "/C: " + std::string(100'000, 'y'));
  std::size_t said = 0;
  window().Said = [&](TextView utterance) { said = utterance.size(); };
  play("type a");
  EXPECT_GT(said, 1000U);
  EXPECT_LT(said, 10'000U);
}

TEST(SearchTerms, AreWordsAndQuotedPhrases) {
  struct Case {
    Text text;
    std::vector<Text> terms;
  };
  const Text full(100'000, u'x');
  const std::array cases = {
      Case{u"", {}},
      // A last single character is not read.
      Case{u"a", {}},
      Case{u" a", {u"a"}},
      Case{u"a ", {u"a"}},
      Case{u"a b", {u"a", u"b"}},
      Case{u"abc def", {u"abc", u"def"}},
      Case{u"   ", {}},
      Case{u"ab \u00AD cd", {u"ab", u"cd"}},
      // Phrases, closed or not; a quote inside a word is a character.
      Case{uR"(")", {}},
      Case{uR"("")", {}},
      Case{uR"(" ")", {u" "}},
      Case{uR"("" ab)", {u"ab"}},
      Case{uR"("abc def)", {u"abc def"}},
      Case{uR"("abc def")", {u"abc def"}},
      Case{uR"("abc def" gh)", {u"abc def", u"gh"}},
      Case{uR"("abc def"x)", {u"abc def"}},
      Case{uR"("abc def"xy)", {u"abc def", u"xy"}},
      Case{uR"("ab""cd")", {u"ab", u"cd"}},
      Case{uR"(ab"cd ef")", {u"ab\"cd", u"ef\""}},
      Case{u"\tab\t\t\"c\td\"", {u"ab", u"c\td"}},
      // Any length, and ten terms.
      Case{full + u" y", {full, u"y"}},
      Case{u"1 2 3 4 5 6 7 8 9 10 11 12",
           {u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10"}},
  };
  for (const Case& given : cases) {
    const auto terms = splitSearchWords(swedish(), given.text);
    EXPECT_TRUE(std::equal(terms.begin(), terms.end(), given.terms.begin(), given.terms.end()))
        << toUtf8(given.text.substr(0, 100)) << " gives " << terms.size() << " terms";
  }
}

TEST_F(LookUp, FindsWhatOneEntryAfterTheOtherFinds) {
  const auto find = [](const clsWEntry& entry, TextView term, std::optional<Text>& key) {
    const auto occurs = [&](TextView text) { return occursPlainly(swedish(), term, text); };
    if (occurs(entry.entryComment())) key = entry.entryWordCount() > 0 ? entry.entryWord(1) : u"";
    for (std::int32_t i = entry.entryWordCount(); key && i > 0; --i) {
      if (swedish().equal(entry.entryType(i), u"E")) key = entry.entryWord(i);
    }
    for (std::int32_t i = entry.entryWordCount(); i > 0; --i) {
      if (occurs(entry.entryWord(i))) key = entry.entryWord(i);
    }
  };
  const Strings starts = {"---", "S: ", "E: ", "e: ", "D: ", "C: ", "", ""};
  Dice dice(6);
  for (int round = 0; round < 40; ++round) {
    std::array<std::string, 2> files;
    for (std::size_t i = 0; i < 100; ++i) {
      files[dice.below(2)] += dice.oneOf(starts) + toUtf8(dice.text(Dice::kHard, 5)) + "/";
    }
    Store store(files[0], files[1]);
    open(files[0], files[1]);
    play("menu mnuEnglish\noption optSearch 1");
    for (int query = 0; query < 20; ++query) {
      const Text text = dice.text(Dice::kHard, 3) + u" " + dice.text(Dice::kHard, 2);
      const auto terms = splitSearchWords(swedish(), text);
      if (terms.empty()) continue;
      SortedRows hits(swedish());
      for (std::int32_t i = 1; i <= store.words.gToolsLast; ++i) {
        std::optional<Text> key;
        for (auto term = terms.begin(); !key && term != terms.end(); ++term) {
          find(store.words.gEntries(i), *term, key);
        }
        if (key) hits.add(*key, i);
      }
      hands->replaceText(search(), text);
      play("key Enter");
      ASSERT_EQ(rows(), rowsText(hits)) << toUtf8(text);
    }
    play("close");
  }
}

}  // namespace termvik::test
