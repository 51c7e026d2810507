// Doublets: words that stand in more than one row of the list. Equal rows lie together in the
// sorted list, so neighbours are all that has to be compared.
#include "lookup/frm_glossary.h"

namespace termvik {

namespace {

constexpr TextView kRowMark = u" ------DUBBLETT-";
constexpr TextView kReportTitle = u"DUBBLETTER";
constexpr TextView kReportRule = u"=======================================";
constexpr TextView kReportIsThere =
    u"Dubbletterna finns nu på klippbordet! \r\n"
    u"Gör ctrl-V i Word för att kopiera dem till ett dokument!";
constexpr TextView kNoClipboard = u"Could not open the clipboard";

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

}  // namespace

void frmGlossary::markDoublets() {
  for (const auto& [first, last] : lstWords_.rows().equalRuns()) {
    for (std::int32_t row = first; row <= last; ++row) {
      lstWords_.setList(row, Text(lstWords_.List(row)).append(kRowMark));
    }
  }
}

void frmGlossary::mnuDoubletList_Click() { copyDoubletsToClipboard(); }

void frmGlossary::copyDoubletsToClipboard() {
  const bool isThere = toolkit_.setClipboardText(doubletReport(lstWords_.rows(), words_));
  toolkit_.MsgBox(isThere ? kReportIsThere : kNoClipboard);
}

}  // namespace termvik
