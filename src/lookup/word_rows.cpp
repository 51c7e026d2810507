// SPDX-License-Identifier: MIT
#include "lookup/word_rows.h"

namespace termvik {

namespace {

// Calls `visit` with the first and the last table index of each chosen glossary.
template <class Visit>
void visitRanges(const defWords& words, ChosenGlossaries chosen, Visit visit) {
  if (chosen.graphical) visit(words.gGraphFirst, words.gGraphLast);
  if (chosen.tools) visit(words.gToolsFirst, words.gToolsLast);
}

}  // namespace

void visitWords(defWords& words, ChosenGlossaries chosen, const WordVisitor& visit) {
  visitRanges(words, chosen, [&](std::int32_t first, std::int32_t last) {
    for (std::int32_t entry = first; entry <= last; ++entry) {
      bool getFirst = true;
      TextView word;
      while (words.gEntries(entry).getGlossaryWord(words.gWordType, getFirst, word)) {
        visit(word, entry);
      }
    }
  });
}

void visitHits(defWords& words, ChosenGlossaries chosen, const std::vector<TextView>& terms,
               const WordVisitor& visit) {
  visitRanges(words, chosen, [&](std::int32_t first, std::int32_t last) {
    visitHits(words, first, last, terms, visit);
  });
}

}  // namespace termvik
