// SPDX-License-Identifier: MIT
// The look-up over the head words of dictionaries: tens of thousands of real words of Swedish,
// English and French.
#include <fstream>
#include <map>

#include <gtest/gtest.h>

#include "lookup/look_up.h"
#include "support/plain_fit.h"
#include "support/store.h"

namespace termvik::test {

// By word type; empty where the dictionaries are not installed (head_words.sh).
static std::map<char16_t, std::vector<Text>> headWords() {
  std::map<char16_t, std::vector<Text>> words;
  std::ifstream lines(TERMVIK_HEAD_WORDS);
  for (std::string line; std::getline(lines, line);) {
    const Text word = fromUtf8(line);
    words[word.front()].push_back(word.substr(1));
  }
  return words;
}

struct HeadWords : testing::Test {
  void SetUp() override {
    if (words.empty()) {
      GTEST_SKIP() << "needs dict-freedict-swe-eng, -swe-fra, -eng-swe, -eng-fra and -fra-eng";
    }
  }

  const std::map<char16_t, std::vector<Text>> words = headWords();
};

TEST_F(HeadWords, AreAllReachedByTypingThem) {
  for (const auto& [type, list] : words) {
    SortedRows rows(swedish());
    for (const Text& word : list) rows.add(word, 0);
    ASSERT_GT(rows.count(), 5000);
    for (const Text& word : list) {
      const TextView selected = rows.text(lookUp(rows, word).top);
      ASSERT_TRUE(swedish().equal(selected.substr(0, word.size()), word))
          << toUtf8(word) << " ends on " << toUtf8(selected);
    }
  }
}

TEST_F(HeadWords, GiveWayToTheFirstRowOfTheLongestPart) {
  Dice dice(8);
  for (const auto& [type, list] : words) {
    SortedRows rows(swedish());
    for (const Text& word : list) rows.add(word, 0);
    for (int round = 0; round < 150; ++round) {
      Text text = dice.oneOf(list);
      text.resize(dice.below(text.size() + 1));
      text += round % 2 == 0 ? dice.oneOf(list) : dice.anyText(3);
      EXPECT_EQ(lookUp(rows, text).top, plainFit(swedish(), rows, text).row) << toUtf8(text);
    }
  }
}

}  // namespace termvik::test
