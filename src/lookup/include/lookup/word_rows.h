// SPDX-License-Identifier: MIT
// The rows of the list as rules over the store: what the chosen glossaries give, and what a search
// gives.
#pragma once

#include <cstdint>
#include <vector>

#include "glossary/def_words.h"
#include "glossary/full_search.h"

namespace termvik {

// The glossaries that the list is made from.
struct ChosenGlossaries {
  bool graphical = false;
  bool tools = false;
};

// Visits each word of the current language, entry by entry.
void visitWords(defWords& words, ChosenGlossaries chosen, const WordVisitor& visit);

// Visits each entry in which one of `terms` occurs, with the word to list for it.
void visitHits(defWords& words, ChosenGlossaries chosen, const std::vector<TextView>& terms,
               const WordVisitor& visit);

}  // namespace termvik
