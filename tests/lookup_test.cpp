// The search box: look-up in the list, the keys that the box must not see, and full search.
#include "support/desk.h"

namespace termvik::test {

struct LookUp : Desk {
  // The rows that the list is made to select by a new search text, in their order.
  std::string moves(TextView text) {
    std::string selected;
    const auto click = list().Click;
    list().Click = [&] {
      selected += std::to_string(list().ListIndex()) + " ";
      click();
    };
    user->replaceText(search(), text);
    list().Click = click;
    return selected;
  }

  // The same by the rule of the search box, one row and one character after the other.
  std::string plainMoves(TextView text) {
    const auto relation = [&](std::int32_t row, std::size_t p) {
      return swedish().textCompare(list().List(row).substr(0, p), text.substr(0, p));
    };
    const std::int32_t count = list().ListCount();
    std::int32_t top = 0;
    std::int32_t bottom = 0;
    int order = 0;
    for (std::size_t p = 1; p <= text.size() && order <= 0; ++p) {
      std::int32_t r = top;
      while (r < count && (order = relation(r, p)) < 0) ++r;
      if (order != 0) continue;
      top = bottom = r;
      while (p == text.size() && bottom + 1 < count && relation(bottom + 1, p) == 0) ++bottom;
    }
    return (bottom > top ? std::to_string(bottom) + " " : "") + std::to_string(top) + " ";
  }
};

TEST_F(LookUp, FollowsThePlainRuleOnAnyList) {
  Dice dice(5);
  for (int round = 0; round < 60; ++round) {
    Text words;
    for (std::size_t i = dice.below(40); i > 0; --i) {
      words += u"---/S: " + dice.text(round % 3 == 0 ? Dice::kHard : u"abcåABß -", 5) + u"/";
    }
    open(toUtf8(words + u"---/S: last"));
    if (round % 2 == 0) play("check 0");
    for (int query = 0; query < 40; ++query) {
      const auto row = dice.below(static_cast<std::size_t>(list().ListCount()));
      Text text(list().List(static_cast<std::int32_t>(row)).substr(0, 1 + dice.below(6)));
      if (dice.below(3) == 0) text += dice.text(u"abåßcA", 2);
      user->replaceText(search(), u"☃");
      ASSERT_EQ(moves(text), plainMoves(text)) << toUtf8(text) << " in " << rows();
    }
    play("close");
  }
}

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

TEST(SearchTerms, AreWordsAndQuotedPhrases) {
  const std::string full(100000, 'x');
  expectTable(  // ¨ stands for a quote, · for a blank
      " =>  ;; a =>  ;; ·a => a| ;; a· => a| ;; a·b => a|b| ;; ··· =>  ;; ¨ =>  ;; ¨¨ =>  ;; "
      "¨·¨ => ·| ;; abc·def => abc|def| ;; ¨abc·def => abc·def| ;; ¨abc·def¨·gh => abc·def|gh| ;; "
      "¨abc·def¨ => abc·def| ;; ¨abc·def¨x => abc·def| ;; ¨abc·def¨xy => abc·def|xy| ;; "
      "ab¨cd·ef¨ => ab¨cd|ef¨| ;; \tab\t\t¨c\td¨ => ab|c\td| ;; ¨ab¨¨cd¨ => ab|cd| ;; "
      "¨¨·ab => ab| ;; ab·\u00AD·cd => ab|cd| ;; " +
          full + "·y => " + full + "|y| ;; " +
          "1·2·3·4·5·6·7·8·9·10·11·12 => 1|2|3|4|5|6|7|8|9|10| ;; ",
      [](const std::string& given) {
        const Text text = fromUtf8(replaced(replaced(given, "·", " "), "¨", "\""));
        std::string terms;
        for (const TextView term : splitSearchWords(swedish(), text)) terms += toUtf8(term) + "|";
        return replaced(replaced(terms, " ", "·"), "\"", "¨");
      });
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
        if (key) hits.setItemData(hits.add(*key), i);
      }
      user->replaceText(search(), text);
      play("key Enter");
      ASSERT_EQ(rows(), rowsText(hits)) << toUtf8(text);
    }
    play("close");
  }
}

}  // namespace termvik::test
