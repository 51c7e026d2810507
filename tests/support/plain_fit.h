// SPDX-License-Identifier: MIT
// The rule of the look-up as it reads, row by row and part by part: what takes a shorter way is
// held against it.
#pragma once

#include "common/collation/sorted_rows.h"

namespace termvik::test {

// The first row that begins with the longest part of `text` that any row begins with.
inline SortedRows::Fit plainFit(const Collation& collation, const SortedRows& rows, TextView text) {
  const auto partsPair = [text](std::size_t length) {
    return length < text.size() && (text[length - 1] & 0xFC00) == 0xD800 &&
           (text[length] & 0xFC00) == 0xDC00;
  };
  for (std::size_t length = text.size(); length > 0; --length) {
    if (partsPair(length)) continue;
    const TextView part = text.substr(0, length);
    for (std::int32_t row = 0; row < rows.count(); ++row) {
      if (collation.equal(rows.text(row).substr(0, length), part)) return {row, length};
    }
  }
  return {};
}

}  // namespace termvik::test
