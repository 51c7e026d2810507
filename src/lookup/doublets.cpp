// Doublets: words that stand in more than one row of the list. Equal rows lie together in the
// sorted list, so neighbours are all that has to be compared.
#include "lookup/frm_glossary.h"

namespace termvik {

namespace {

constexpr TextView kRowMark = u" ------DUBBLETT-";
constexpr TextView kReportRule = u"=======================================";
constexpr TextView kReportIsThere =
    u"Dubbletterna finns nu på klippbordet! \r\n"
    u"Gör ctrl-V i Word för att kopiera dem till ett dokument!";
constexpr TextView kNoClipboard = u"Could not open the clipboard";

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
  Text report = u"DUBBLETTER";
  report.append(kLineEnd).append(kReportRule).append(kLineEnd).append(kLineEnd);
  for (const auto& [first, last] : lstWords_.rows().equalRuns()) {
    for (std::int32_t row = first; row <= last; ++row) {
      const clsWEntry& entry = words_.gEntries(lstWords_.ItemData(row));
      report.append(kLineEnd).append(kLineEnd).append(entry.getArticle(words_.gWordType));
    }
    report.append(kLineEnd).append(kReportRule).append(kLineEnd).append(kLineEnd);
  }
  const bool isThere = toolkit_.setClipboardText(report);
  toolkit_.MsgBox(isThere ? kReportIsThere : kNoClipboard);
}

}  // namespace termvik
