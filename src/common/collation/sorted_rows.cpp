// SPDX-License-Identifier: MIT
#include "common/collation/sorted_rows.h"

#include <algorithm>
#include <cstring>

#include "letters.h"

namespace termvik {

SortedRows::SortedRows(const Collation& collation) : collation_(&collation) {}

void SortedRows::clear() {
  rows_.clear();
  entries_.clear();
  orderedCount_ = 0;
  texts_ = {};
  keys_ = {};
}

void SortedRows::add(TextView text, std::int32_t itemData) {
  rows_.push_back({.itemData = itemData});
  entries_.push_back(makeEntry(static_cast<std::uint32_t>(rows_.size()) - 1, text));
}

std::int32_t SortedRows::newest() const {
  const auto isNewest = [this](const Entry& entry) { return &rowOf(entry) == &rows_.back(); };
  const auto found = std::find_if(ordered().begin(), ordered().end(), isNewest);
  return found == entries_.end() ? -1 : static_cast<std::int32_t>(found - entries_.begin());
}

// Equal rows stay in the order of their addition, and a row whose text was replaced in its place.
const LargeVector<SortedRows::Entry>& SortedRows::ordered() const {
  if (orderedCount_ == entries_.size()) return entries_;
  const auto before = [this](const Entry& a, const Entry& b) { return isBefore(a, b); };
  const auto added = entries_.begin() + static_cast<std::ptrdiff_t>(orderedCount_);
  std::stable_sort(added, entries_.end(), before);
  std::inplace_merge(entries_.begin(), added, entries_.end(), before);
  orderedCount_ = entries_.size();
  return entries_;
}

SortedRows::Head SortedRows::makeHead(const std::uint8_t* ranks, std::size_t count) {
  Head head;
  for (std::size_t i = 0; i < count; ++i) {
    if (i < 8) {
      head.high |= std::uint64_t{ranks[i]} << (8 * (7 - i));
    } else {
      head.low |= std::uint32_t{ranks[i]} << (8 * (kHead - 1 - i));
    }
  }
  return head;
}

// Gives row `id` its text.
SortedRows::Entry SortedRows::makeEntry(std::uint32_t id, TextView text) {
  Row& row = rows_[id];
  row.text = texts_.add(text);
  row.length = static_cast<std::uint32_t>(text.size());
  row.key = nullptr;
  Entry entry{.id = id};
  makeKey(text, row, entry);
  return entry;
}

void SortedRows::makeKey(TextView text, Row& row, Entry& entry) {
  const Letters& letters = collation_->letters();
  scratch_.resize(Letters::roomFor(text));
  const Letters::Spelling spelling = letters.spell(text, scratch_.data());
  if (!spelling.known) return;  // without a key the collator compares the texts
  scratch_.resize(spelling.count);
  scratchKey_.clear();
  bool plain = true;
  for (const Letter letter : scratch_) {
    scratchKey_.push_back(letters.rank(letter));
    plain = plain && letters.isPlain(letter);
  }
  const Head head = makeHead(scratchKey_.data(), std::min(kHead, scratchKey_.size()));
  entry.headHigh = head.high;
  entry.headLow = head.low;
  scratchKey_.push_back(0);
  if (!plain) {
    if (letters.accentsFromBack()) std::reverse(scratch_.begin(), scratch_.end());
    scratchKey_.insert(scratchKey_.end(), scratch_.begin(), scratch_.end());
  }
  row.key = keys_.add({scratchKey_.data(), scratchKey_.size()});
  if (plain && spelling.oneLetterEach) entry.id |= kPlain;
}

TextView SortedRows::textOf(const Entry& entry) const {
  const Row& row = rowOf(entry);
  return {row.text, row.length};
}

int SortedRows::compare(const Entry& a, const Entry& b) const {
  const Row& rowA = rowOf(a);
  const Row& rowB = rowOf(b);
  if (rowA.key == nullptr || rowB.key == nullptr) {
    return collation_->textCompare(textOf(a), textOf(b));
  }
  const auto* keyA = reinterpret_cast<const char*>(rowA.key);
  const auto* keyB = reinterpret_cast<const char*>(rowB.key);
  const int ranks = std::strcmp(keyA, keyB);
  if (ranks != 0) return ranks;
  const std::size_t letters = std::strlen(keyA) + 1;  // equal ranks: the letters begin alike
  return std::strcmp(keyA + letters, keyB + letters);
}

// Heads decide where both rows have one and they differ.
bool SortedRows::isBefore(const Entry& a, const Entry& b) const {
  return headsDecide(a, b) ? a.head().isBefore(b.head()) : compare(a, b) < 0;
}

void SortedRows::setText(std::int32_t row, TextView text) {
  ordered();
  Entry& entry = entries_[static_cast<std::size_t>(row)];
  entry = makeEntry(entry.id & kId, text);
  entry.id |= kReplaced;
}

std::vector<SortedRows::Run> SortedRows::equalRuns() const {
  const LargeVector<Entry>& entries = ordered();
  const auto equal = [this](const Entry& a, const Entry& b) {
    return !headsDecide(a, b) && compare(a, b) == 0;
  };
  const auto rowAt = [&](auto entry) { return static_cast<std::int32_t>(entry - entries.begin()); };
  std::vector<Run> runs;
  auto first = std::adjacent_find(entries.begin(), entries.end(), equal);
  while (first != entries.end()) {
    const auto isOther = [&](const Entry& entry) { return !equal(*first, entry); };
    const auto next = std::find_if(first, entries.end(), isOther);
    runs.push_back({rowAt(first), rowAt(next) - 1});
    first = std::adjacent_find(next, entries.end(), equal);
  }
  return runs;
}

}  // namespace termvik
