// SPDX-License-Identifier: MIT
// Full search: the entries that hold at least one of some terms, in a word of any language or in
// the comment.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "common/system/text.h"
#include "glossary/def_words.h"

namespace termvik {

// Takes a word to list and the table index of its entry.
using WordVisitor = std::function<void(TextView word, std::int32_t entryIndex)>;

// Visits, rising, each entry from `first` to `last`, all of one glossary, in which one of `terms`
// occurs. The word to list is the one that has the first such term, or, for a hit in the comment,
// the entry's first word of `words.gWordType`, or its first word of all. No term is empty for the
// collation.
void visitHits(defWords& words, std::int32_t first, std::int32_t last,
               const std::vector<TextView>& terms, const WordVisitor& visit);

}  // namespace termvik
