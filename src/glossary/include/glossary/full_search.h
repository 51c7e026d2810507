// Full search: the entries that hold at least one of some terms, in a word of any language or in
// the comment.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "common/system/text.h"
#include "glossary/def_words.h"

namespace termvik {

// Takes the table index of an entry and the word to list for it.
using HitVisitor = std::function<void(std::int32_t entryIndex, TextView word)>;

// Visits, rising, each entry from `first` to `last`, all of one glossary, in which one of `terms`
// occurs. The word to list is the one that has the first such term, or, for a hit in the comment,
// the entry's first word of `words.gWordType`, or its first word of all. No term is empty for the
// collation.
void visitHits(defWords& words, std::int32_t first, std::int32_t last,
               const std::vector<TextView>& terms, const HitVisitor& visit);

}  // namespace termvik
