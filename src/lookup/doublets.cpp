// SPDX-License-Identifier: MIT
#include "lookup/doublets.h"

namespace termvik {

namespace {

constexpr TextView kReportTitle = u"DUBBLETTER";
constexpr TextView kReportRule = u"=======================================";

// Gives `visit` the report, piece by piece. The rows of an entry whose words are equal follow one
// another, so its article is made once for all of them.
template <class Visit>
void visitReport(const SortedRows& rows, defWords& words, Visit visit) {
  for (const TextView piece : {kReportTitle, kLineEnd, kReportRule, kLineEnd, kLineEnd}) {
    visit(piece);
  }
  Text article;
  std::int32_t entryOfArticle = 0;
  for (const auto& [first, last] : rows.equalRuns()) {
    for (std::int32_t row = first; row <= last; ++row) {
      const std::int32_t entry = rows.itemData(row);
      if (entry != entryOfArticle) article = words.gEntries(entry).getArticle(words.gWordType);
      entryOfArticle = entry;
      for (const TextView piece : {kLineEnd, kLineEnd, TextView(article)}) visit(piece);
    }
    for (const TextView piece : {kLineEnd, kReportRule, kLineEnd, kLineEnd}) visit(piece);
  }
}

}  // namespace

void markDoublets(const SortedRows& rows, const RowChange& change) {
  for (const auto& [first, last] : rows.equalRuns()) {
    for (std::int32_t row = first; row <= last; ++row) {
      change(row, Text(rows.text(row)).append(kDoubletMark));
    }
  }
}

// Measured first: an entry of many equal words gives its article once for each, and a text of that
// size must not be in memory twice because it grows.
Text doubletReport(const SortedRows& rows, defWords& words) {
  std::size_t size = 0;
  visitReport(rows, words, [&size](TextView piece) { size += piece.size(); });
  Text report;
  report.reserve(size);
  visitReport(rows, words, [&report](TextView piece) { report.append(piece); });
  return report;
}

}  // namespace termvik
