// SPDX-License-Identifier: MIT
// The sorted rows against a plain vector that the collator orders.
#include <algorithm>
#include <utility>
#include <vector>

#include "common/collation/sorted_rows.h"
#include "input.h"
#include "plain_rows.h"

namespace termvik::fuzz {

namespace {

constexpr std::size_t kLongest = 24;  // characters of a row or of a text that rows are held to
constexpr TextView kMark = u" ------DUBBLETT-";

void expectSameRows(const SortedRows& rows, const PlainRows& plain) {
  expectSame(rows.count(), std::ssize(plain.rows()), "number of rows");
  for (std::int32_t i = 0; i < rows.count(); ++i) {
    expectSame(rows.text(i), plain.text(i), "text of a row");
    expectSame(rows.itemData(i), plain.itemData(i), "number of a row");
  }
}

void expectSameFit(const SortedRows& rows, const PlainRows& plain, TextView text) {
  const SortedRows::Fit fit = rows.bestFit(text);
  const auto [row, length] = plain.bestFit(text);
  expect(fit.length == length, "length that fits", {text});
  expectSame(fit.row, row, "row that fits");
  if (length == 0 || length < text.size()) return;
  expectSame(rows.endOfRun(text, row), plain.endOfRun(text, row), "end of a run");
}

void markDoublets(SortedRows& rows, PlainRows& plain) {
  const std::vector<SortedRows::Run> runs = rows.equalRuns();
  expect(runs == plain.equalRuns(), "runs of equal rows");
  for (const auto& [first, last] : runs) {
    for (std::int32_t row = first; row <= last; ++row) {
      const Text marked = Text(plain.text(row)).append(kMark);
      rows.setText(row, marked);
      plain.setText(row, marked);
    }
  }
}

}  // namespace

void fuzz(Input& input) {
  const Collation& collation = input.collation();
  SortedRows rows(collation);
  PlainRows plain(collation.collator());
  std::int32_t added = 0;
  bool isMarked = false;
  while (!input.isUsedUp()) {
    switch (input.below(8)) {
      case 0:
        expectSameRows(rows, plain);
        break;
      case 1:
        expectSameFit(rows, plain, input.text(kLongest));
        break;
      case 2:
        if (!isMarked) markDoublets(rows, plain);
        isMarked = true;
        break;
      case 3:
        if (!isMarked) expectSame(rows.newest(), plain.newest(), "row added last");
        break;
      default:
        if (isMarked) {  // the program fills a list that it has emptied
          rows.clear();
          plain.clear();
          isMarked = false;
        }
        const Text text = input.textOfFile(kLongest);
        rows.add(text, ++added);
        plain.add(text, added);
    }
  }
  expectSameRows(rows, plain);
}

}  // namespace termvik::fuzz
