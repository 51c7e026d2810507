// SPDX-License-Identifier: MIT
#include "lookup/look_up.h"

namespace termvik {

FoundRows lookUp(const SortedRows& rows, TextView searchText) {
  const SortedRows::Fit fit = rows.bestFit(searchText);
  const bool whole = fit.length > 0 && fit.length == searchText.size();
  return {fit.row, whole ? rows.endOfRun(searchText, fit.row) : 0, whole};
}

}  // namespace termvik
