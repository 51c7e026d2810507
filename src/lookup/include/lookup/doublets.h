// SPDX-License-Identifier: MIT
// Doublets: words that stand in more than one row of the list. Equal rows lie together in it, so
// neighbours are all that has to be compared.
#pragma once

#include <cstdint>
#include <functional>

#include "common/collation/sorted_rows.h"
#include "glossary/def_words.h"

namespace termvik {

// Takes a row and the text that it is to have from now on.
using RowChange = std::function<void(std::int32_t row, TextView text)>;

// Marks each doublet at its end.
inline constexpr TextView kDoubletMark = u" ------DUBBLETT-";
void markDoublets(const SortedRows& rows, const RowChange& change);

// The articles of all doublets, word by word.
Text doubletReport(const SortedRows& rows, defWords& words);

}  // namespace termvik
