// The rows of the sorted list against a plain vector of rows.
#include "common/sorted_rows.h"

#include "support/desk.h"

namespace termvik::test {

constexpr int kRandom = 9;

using Row = std::pair<Text, std::int32_t>;

struct SortedRowsLike : testing::TestWithParam<std::tuple<const char*, int>> {
  // The texts rise, fall or stay as the step says; kRandom makes them random.
  Text nextText(std::int32_t i) {
    const int step = std::get<int>(GetParam());
    if (step != kRandom) return fromUtf8(std::to_string(100000 + i / 2 * step));
    return i % 2 == 0 ? dice.anyText(5) : dice.text(u"abAßs-l·é", 16);
  }

  void expectSameRows() {
    std::string texts;
    for (auto& [text, item] : plain) texts += toUtf8(text) + "/" + std::to_string(item) + " ";
    ASSERT_EQ(rowsText(rows), texts);
  }

  void expectSameAnswers(std::int32_t from, TextView prefix) {
    const auto relation = [&](std::int32_t row) {
      return collation.textCompare(TextView(at(row).first).substr(0, prefix.size()), prefix);
    };
    std::int32_t row = from;
    while (row < rows.count() && relation(row) < 0) ++row;
    const bool fits = row < rows.count() && relation(row) == 0;
    const SortedRows::Walk walk = rows.findPrefix(prefix, from);
    ASSERT_EQ(std::pair(walk.row, walk.fits), std::pair(row, fits)) << toUtf8(prefix);
    std::int32_t last = row;
    while (fits && last + 1 < rows.count() && relation(last + 1) == 0) ++last;
    ASSERT_EQ(fits ? rows.endOfRun(prefix, row) : row, last) << toUtf8(prefix);
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
  Collation collation{std::get<const char*>(GetParam())};
  SortedRows rows{collation};
  std::vector<Row> plain;
};

INSTANTIATE_TEST_SUITE_P(Orders, SortedRowsLike,
                         testing::Combine(testing::Values("sv_SE", "da_DK", "fr_CA"),
                                          testing::Values(1, -1, 0, kRandom)));

TEST_P(SortedRowsLike, APlainVector) {
  for (std::int32_t i = 0; i < 3000; ++i) {  // a dozen blocks and more
    const Text text = nextText(i);
    const auto behind = std::partition_point(plain.begin(), plain.end(), [&](const Row& row) {
      return collation.textCompare(row.first, text) <= 0;
    });
    const auto rank = static_cast<std::int32_t>(behind - plain.begin());
    plain.insert(behind, {text, i});
    ASSERT_EQ(rows.add(text), rank) << toUtf8(text);
    rows.setItemData(rank, i);
  }
  expectSameRows();
  expectSameRuns();
  for (int i = 0; i < 200; ++i) {
    expectSameAnswers(anyRow(), at(anyRow()).first.substr(0, 1 + dice.below(14)));
    const std::int32_t row = anyRow();  // a new text stays where the old one stood
    at(row).first = i % 2 == 0 ? at(row).first + u" ------" : dice.anyText(5);
    rows.setText(row, at(row).first);
  }
  expectSameRows();
  expectSameRuns();
  rows.clear();
  EXPECT_EQ(rows.add(u"again") + rows.count(), 1);
}

}  // namespace termvik::test
