// One full search on its way through the entries of the glossaries, in the table's order.
//
// Each term is looked for from the front of a glossary's texts to its end in one pass, and the run
// keeps where each term stands next, so that a search goes from hit to hit.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "common/search_term.h"
#include "glossary/entry_texts.h"

namespace termvik {

class SearchRun {
 public:
  explicit SearchRun(std::vector<SearchTerm> terms);

  // The first of the texts from `first` up to, and not including, `end` that has the first of the
  // terms that stands in any of them. `first` must not go back while `texts` stays the same.
  std::optional<std::size_t> firstHit(const EntryTexts& texts, std::size_t first, std::size_t end);

  // The first text from `first` on in which a term can occur; none can in those before it.
  std::size_t nextCandidate(const EntryTexts& texts, std::size_t first);

 private:
  void startIn(const EntryTexts& texts);

  std::vector<SearchTerm> terms_;
  std::vector<std::size_t> next_;  // where each term stands next; one that lies behind the run has
                                   // not been looked for since
  const EntryTexts* texts_ = nullptr;
};

}  // namespace termvik
