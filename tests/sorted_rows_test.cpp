// SPDX-License-Identifier: MIT
// The rows of the sorted list against a plain vector of rows.
#include "common/collation/sorted_rows.h"

#include "support/desk.h"
#include "support/plain_fit.h"

namespace termvik::test {

using Row = std::pair<Text, std::int32_t>;

struct SortedRowsLike : testing::TestWithParam<const char*> {
  // Adds a row where a plain insertion puts it, and gives its row number.
  std::int32_t add(const Text& text, std::int32_t itemData) {
    const auto next = std::partition_point(plain.begin(), plain.end(), [&](const Row& row) {
      return collation.textCompare(row.first, text) <= 0;
    });
    rows.add(text, itemData);
    return static_cast<std::int32_t>(plain.insert(next, {text, itemData}) - plain.begin());
  }

  void expectSameRows() {
    std::string texts;
    for (auto& [text, item] : plain) texts += toUtf8(text) + "/" + std::to_string(item) + " ";
    ASSERT_EQ(rowsText(rows), texts);
  }

  void expectSameFit(TextView text) {
    const auto begins = [&](std::int32_t row) {
      return collation.equal(TextView(at(row).first).substr(0, text.size()), text);
    };
    const SortedRows::Fit best = plainFit(collation, rows, text);
    const SortedRows::Fit fit = rows.bestFit(text);
    ASSERT_EQ(std::pair(fit.row, fit.length), std::pair(best.row, best.length)) << toUtf8(text);
    if (fit.length < text.size() || text.empty()) return;
    std::int32_t last = fit.row;
    while (last + 1 < rows.count() && begins(last + 1)) ++last;
    ASSERT_EQ(rows.endOfRun(text, fit.row), last) << toUtf8(text);
  }

  void expectSameRuns() {
    std::vector<SortedRows::Run> runs;
    for (std::int32_t row = 0, next = 0; row < rows.count(); row = next) {
      next = row + 1;
      while (next < rows.count() && collation.equal(at(row).first, at(next).first)) ++next;
      if (next > row + 1) runs.push_back({row, next - 1});
    }
    ASSERT_TRUE(rows.equalRuns() == runs);
  }

  Row& at(std::int32_t row) { return plain[static_cast<std::size_t>(row)]; }
  std::int32_t anyRow() { return static_cast<std::int32_t>(dice.below(plain.size())); }

  Dice dice{2};
  Collation collation{GetParam()};
  SortedRows rows{collation};
  std::vector<Row> plain;
};

INSTANTIATE_TEST_SUITE_P(Locales, SortedRowsLike, testing::Values("sv_SE", "da_DK", "fr_CA"));

TEST_P(SortedRowsLike, APlainVector) {
  EXPECT_EQ(rows.newest(), -1);
  for (std::int32_t i = 0; i < 3000; ++i) {
    const Text text = i % 2 == 0 ? dice.anyText(5) : dice.text(u"abAßs-l·é", 16);
    const std::int32_t row = add(text, i);
    if (dice.below(9) > 0) continue;  // rows come into order by ones and by dozens
    ASSERT_EQ(rows.newest(), row) << toUtf8(text);
  }
  expectSameRows();
  expectSameRuns();
  for (int i = 0; i < 300; ++i) {
    const Text text = at(anyRow()).first.substr(0, 1 + dice.below(14));
    expectSameFit(i % 3 == 0 ? text + dice.anyText(3) : text);
  }
  for (int i = 0; i < 200; ++i) {
    const std::int32_t row = anyRow();  // a new text stays where the old one stood
    at(row).first = i % 2 == 0 ? at(row).first + u" ------" : dice.anyText(5);
    rows.setText(row, at(row).first);
  }
  expectSameRows();
  expectSameRuns();
  rows.clear();
  rows.add(u"again", 7);
  EXPECT_EQ(rowsText(rows), "again/7 ");
}

// What a part of a text begins with is that part's alone: the next character can make another
// letter of it.
TEST(SortedRows, FitATextWhoseLettersHangOnTheirNeighbours) {
  struct Case {
    const char* locale;
    std::vector<Text> rows;
    Text text;
  };
  const std::vector<Case> cases = {
      {"da_DK", {u"b", u"ª"}, u"AA"},                // an å, but its part `A` is an a, as ª is
      {"sv_SE", {u"b", u"\u00ADe"}, u"ｅ\u00AD"},    // an e behind what is no letter
      {"sv_SE", {u"bild", u"å", u"ö"}, u"a\u030A"},  // an å that is past all with an a
  };
  for (const auto& [locale, texts, text] : cases) {
    const Collation collation(locale);
    SortedRows rows(collation);
    for (const Text& row : texts) rows.add(row, 0);
    const SortedRows::Fit best = plainFit(collation, rows, text);
    const SortedRows::Fit fit = rows.bestFit(text);
    EXPECT_EQ(std::pair(fit.row, fit.length), std::pair(best.row, best.length)) << toUtf8(text);
  }
}

}  // namespace termvik::test
