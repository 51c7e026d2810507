// SPDX-License-Identifier: MIT
// How far the sorted rows fit a text: the walk of the look-up along them.
#include <algorithm>
#include <array>

#include "common/collation/sorted_rows.h"
#include "wanted_text.h"

namespace termvik {

SortedRows::Head SortedRows::maskOf(std::size_t ranks) {
  std::array<std::uint8_t, kHead> all{};
  std::fill_n(all.begin(), std::min(ranks, kHead), std::uint8_t{255});
  return makeHead(all.data(), kHead);
}

SortedRows::Lead SortedRows::leadOf(const WantedText& text, std::size_t length) {
  const std::vector<std::uint8_t> ranks = text.ranksOf(length);
  return {makeHead(ranks.data(), std::min(kHead, ranks.size())), maskOf(ranks.size())};
}

// One walk for parts of all lengths: a row is looked at only where its ranks are those of a longer
// part than any row before it begins with. It ends at a row past them, not at one that sorts after
// the text for an accent's sake: after `nœud` come `noir` and `nom`, which begin with `no`. Nor at
// one whose text was replaced: after `färg` with a mark may come `färg-balans`.
SortedRows::Fit SortedRows::bestFit(TextView text, std::int32_t from) const {
  const WantedText wanted(*collation_, text);
  const auto& entries = ordered();
  Fit best;
  Lead lead = leadOf(wanted, 1);
  Lead known;  // plain rows with this lead, when it has a mask, fit no longer part
  for (std::int32_t row = from; row < count() && best.length < text.size(); ++row) {
    const Entry& entry = entries[static_cast<std::size_t>(row)];
    if (!lead.begins(entry) && entry.headHigh != 0) {
      const bool inOrder = (entry.id & kReplaced) == 0;
      if (inOrder && lead.head.isBefore(entry.head().masked(lead.mask))) break;
      continue;
    }
    if (isPlain(entry) && known.mask != Head{} && known.begins(entry)) continue;
    const WantedText::Fit fit = wanted.fitOf(textOf(entry), isKeyed(entry));
    if (fit.length > best.length) {
      best = {row, fit.length};
      lead = leadOf(wanted, std::min(fit.length + 1, text.size()));
      known = {};
    } else if (isPlain(entry) && fit.seen <= kHead) {
      const Head mask = maskOf(fit.seen);
      known = {entry.head().masked(mask), mask};
    }
  }
  return best;
}

std::int32_t SortedRows::endOfRun(TextView text, std::int32_t from) const {
  const WantedText wanted(*collation_, text);
  const auto& entries = ordered();
  const Head mask = text.size() <= kHead ? maskOf(text.size()) : Head{};
  Lead known;  // plain rows with this lead, when it has a mask, begin with the text
  const auto isInRun = [&](const Entry& entry) {
    if (isPlain(entry) && known.mask != Head{} && known.begins(entry)) return true;
    if (wanted.fitOf(textOf(entry), isKeyed(entry)).length < text.size()) return false;
    if (isPlain(entry)) known = {entry.head().masked(mask), mask};
    return true;
  };
  const auto end = std::find_if_not(entries.begin() + from + 1, entries.end(), isInRun);
  return static_cast<std::int32_t>(end - entries.begin()) - 1;
}

}  // namespace termvik
