// SPDX-License-Identifier: MIT
#include "glossary/full_search.h"

#include <algorithm>

#include "common/system/partition.h"
#include "entry_texts.h"

namespace termvik {

// From hit to hit: to ask each entry on the way would take as long as the search itself
// (bench/full_search).
void visitHits(defWords& words, std::int32_t first, std::int32_t last,
               const std::vector<TextView>& terms, const WordVisitor& visit) {
  if (first > last) return;
  const clsWEntry* const begin = &words.gEntries(first);
  const clsWEntry* const end = begin + (last - first + 1);
  std::vector<TermWalk> walks;
  walks.reserve(terms.size());
  for (const TextView term : terms) walks.emplace_back(begin->texts().folded(), term);
  for (const clsWEntry* entry = begin; entry != end; ++entry) {
    std::size_t nearest = begin->texts().size();
    for (TermWalk& walk : walks) nearest = std::min(nearest, walk.next(entry->firstText()));
    entry = nearPartitionPoint(
        entry, end, [=](const clsWEntry& other) { return other.commentText() < nearest; });
    if (entry == end) return;
    const auto isHere = [&](TermWalk& walk) { return walk.hit() <= entry->commentText(); };
    const auto hit = std::find_if(walks.begin(), walks.end(), isHere);
    visit(entry->wordForHit(hit->hit(), words.gWordType),
          first + static_cast<std::int32_t>(entry - begin));
  }
}

}  // namespace termvik
