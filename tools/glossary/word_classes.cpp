// SPDX-License-Identifier: MIT
#include "word_classes.h"

#include <numeric>

#include "common/collation/sorted_rows.h"

namespace termvik::tool {

std::vector<std::uint32_t> classesOf(const std::vector<TextView>& words,
                                     const Collation& collation) {
  SortedRows rows(collation);
  for (std::size_t i = 0; i < words.size(); ++i) {
    rows.add(words[i], static_cast<std::int32_t>(i));
  }
  std::vector<std::uint32_t> classes(words.size());
  std::iota(classes.begin(), classes.end(), 0U);
  for (const SortedRows::Run& run : rows.equalRuns()) {
    const auto first = static_cast<std::uint32_t>(rows.itemData(run.first));
    for (std::int32_t row = run.first; row <= run.last; ++row) {
      classes[static_cast<std::size_t>(rows.itemData(row))] = first;
    }
  }
  return classes;
}

}  // namespace termvik::tool
