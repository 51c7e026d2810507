// SPDX-License-Identifier: MIT
#include "plain_rows.h"

#include <algorithm>

namespace termvik::fuzz {

void PlainRows::clear() {
  rows_.clear();
  newest_ = -1;
}

void PlainRows::add(TextView text, std::int32_t itemData) {
  const auto greater = [&](const Row& row) { return judge_->compare(row.text, text) > 0; };
  const auto place = std::find_if(rows_.begin(), rows_.end(), greater);
  newest_ = static_cast<std::int32_t>(place - rows_.begin());
  rows_.insert(place, {Text(text), itemData});
}

std::pair<std::int32_t, std::size_t> PlainRows::bestFit(TextView text) const {
  const auto isHalf = [&](std::size_t at, char16_t half) { return (text[at] & 0xFC00) == half; };
  for (std::size_t length = text.size(); length > 0; --length) {
    const bool partsPair =
        length < text.size() && isHalf(length - 1, 0xD800) && isHalf(length, 0xDC00);
    if (partsPair) continue;
    const auto fits = [&](const Row& row) { return begins(row, text.substr(0, length)); };
    const auto found = std::find_if(rows_.begin(), rows_.end(), fits);
    if (found != rows_.end()) return {static_cast<std::int32_t>(found - rows_.begin()), length};
  }
  return {0, 0};
}

std::int32_t PlainRows::endOfRun(TextView text, std::int32_t row) const {
  while (row + 1 < count() && begins(at(row + 1), text)) ++row;
  return row;
}

std::vector<SortedRows::Run> PlainRows::equalRuns() const {
  std::vector<SortedRows::Run> runs;
  for (std::int32_t row = 0, next = 0; row < count(); row = next) {
    next = row + 1;
    while (next < count() && judge_->compare(text(row), text(next)) == 0) ++next;
    if (next > row + 1) runs.push_back({row, next - 1});
  }
  return runs;
}

}  // namespace termvik::fuzz
