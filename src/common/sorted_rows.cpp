#include "common/sorted_rows.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace termvik {

SortedRows::SortedRows(const Collation& collation) : collation_(&collation) {}

void SortedRows::clear() { *this = SortedRows(*collation_); }

std::int32_t SortedRows::add(TextView text) {
  const Entry entry = makeEntry(text);
  const Place place = insert(entry);
  ++count_;
  newest_ = rankOf(place);
  return newest_;
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

SortedRows::Entry SortedRows::makeEntry(TextView text) {
  Entry entry;
  entry.id = static_cast<std::uint32_t>(rows_.size());
  Row row;
  row.text = texts_.add(text);
  row.length = static_cast<std::int32_t>(text.size());
  makeKey(text, row, entry);
  rows_.push_back(row);
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
  const bool dense =
      std::all_of(text.begin(), text.end(), [&](char16_t c) { return letters.of(c).count > 0; });
  if (dense) entry.id |= kDense;
  if (plain && spelling.oneLetterEach) entry.id |= kPlain;
}

TextView SortedRows::textOf(const Entry& entry) const {
  const Row& row = rowOf(entry);
  return {row.text, static_cast<std::size_t>(row.length)};
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

// Behind all rows that are not greater.
SortedRows::Place SortedRows::insert(const Entry& entry) {
  const auto before = [this](const Entry& a, const Entry& b) { return isBefore(a, b); };
  if (blocks_.empty()) {
    blocks_.push_back(std::make_unique<Block>());
    firsts_.push_back(entry);
    rebuildSums();
  }
  const auto after = std::upper_bound(firsts_.begin() + 1, firsts_.end(), entry, before);
  auto index = static_cast<std::size_t>(after - firsts_.begin()) - 1;
  if (blocks_[index]->count == kBlockRows) {
    splitBlock(index);
    if (!isBefore(entry, firsts_[index + 1])) ++index;
  }
  Block& block = *blocks_[index];
  Entry* const begin = block.entries.data();
  Entry* const end = begin + block.count;
  Entry* const at = std::upper_bound(begin, end, entry, before);
  std::copy_backward(at, end, end + 1);
  *at = entry;
  ++block.count;
  firsts_[index] = *begin;
  for (std::size_t i = index + 1; i <= blocks_.size(); i += i & (~i + 1)) ++sums_[i];
  return {index, static_cast<std::size_t>(at - begin)};
}

void SortedRows::splitBlock(std::size_t block) {
  Block& full = *blocks_[block];
  auto upper = std::make_unique<Block>();
  upper->count = kBlockRows / 2;
  full.count = kBlockRows - upper->count;
  std::copy_n(full.entries.begin() + full.count, upper->count, upper->entries.begin());
  firsts_.insert(firsts_.begin() + static_cast<std::ptrdiff_t>(block) + 1, upper->entries[0]);
  blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(block) + 1, std::move(upper));
  rebuildSums();
}

void SortedRows::rebuildSums() {
  sums_.assign(blocks_.size() + 1, 0);
  for (std::size_t i = 1; i <= blocks_.size(); ++i) {
    sums_[i] += static_cast<std::int32_t>(blocks_[i - 1]->count);
    const std::size_t parent = i + (i & (~i + 1));
    if (parent < sums_.size()) sums_[parent] += sums_[i];
  }
}

std::int32_t SortedRows::rankOf(const Place& place) const {
  auto rank = static_cast<std::int32_t>(place.index);
  for (std::size_t i = place.block; i > 0; i &= i - 1) rank += sums_[i];
  return rank;
}

SortedRows::Place SortedRows::placeOf(std::int32_t row) const {
  std::size_t block = 0;
  for (std::size_t step = std::bit_floor(blocks_.size()); step > 0; step /= 2) {
    if (block + step < sums_.size() && sums_[block + step] <= row) {
      block += step;
      row -= sums_[block];
    }
  }
  return {block, static_cast<std::size_t>(row)};
}

const SortedRows::Entry& SortedRows::entryAt(std::int32_t row) const {
  const Place place = placeOf(row);
  return blocks_[place.block]->entries[place.index];
}

TextView SortedRows::text(std::int32_t row) const { return textOf(entryAt(row)); }

std::int32_t SortedRows::itemData(std::int32_t row) const { return rowOf(entryAt(row)).itemData; }

// Nearly always for the row that has just been added, which need not be looked for (bench/fill).
void SortedRows::setItemData(std::int32_t row, std::int32_t itemData) {
  Row& wanted = row == newest_ ? rows_.back() : rows_[entryAt(row).id & kId];
  wanted.itemData = itemData;
}

void SortedRows::setText(std::int32_t row, TextView text) {
  const Place place = placeOf(row);
  Entry& entry = blocks_[place.block]->entries[place.index];
  const std::uint32_t id = entry.id & kId;
  const std::int32_t itemData = rows_[id].itemData;
  Entry renewed = makeEntry(text);  // makes a row of its own at the end, which moves into place
  rows_[id] = rows_.back();
  rows_.pop_back();
  rows_[id].itemData = itemData;
  renewed.id = (renewed.id & ~kId) | id;
  entry = renewed;
  if (place.index == 0) firsts_[place.block] = renewed;
}

SortedRows::Prefix SortedRows::makePrefix(TextView text) const {
  Prefix prefix{.text = text};
  constexpr std::array<std::uint8_t, kHead> kAllRanks = {255, 255, 255, 255, 255, 255,
                                                         255, 255, 255, 255, 255, 255};
  if (text.size() <= kHead) prefix.wholeMask = makeHead(kAllRanks.data(), text.size());
  const Letters& table = collation_->letters();
  std::array<std::uint8_t, kHead> ranks{};
  std::size_t count = 0;
  bool plain = text.size() <= kHead;
  for (const char16_t character : text) {
    const CharacterLetters& letters = table.of(character);
    if (!letters.known()) return prefix;  // it can change what stands ahead of it
    if (count == kHead) break;
    plain = plain && letters.count == 1 && table.isPlain(letters.letters[0]);
    for (std::size_t i = 0; i < letters.count && count < kHead; ++i) {
      ranks[count++] = table.rank(letters.letters[i]);
    }
  }
  const std::size_t compared = std::min(count, text.size());
  prefix.head = makeHead(ranks.data(), compared);
  prefix.mask = makeHead(kAllRanks.data(), compared);
  prefix.plain = plain;
  return prefix;
}

// The order of the row's first prefix.text.size() characters and the prefix.
int SortedRows::comparePrefix(const Entry& entry, const Prefix& prefix, Verdict& last) const {
  if ((entry.id & kDense) != 0) {
    const Head head = entry.head().masked(prefix.mask);
    if (head != prefix.head) return head.isBefore(prefix.head) ? -1 : 1;
  }
  if ((entry.id & kPlain) == 0) return askCollator(entry, prefix);
  if (prefix.plain) return 0;
  if (prefix.wholeMask == Head{}) return askCollator(entry, prefix);
  const Head whole = entry.head().masked(prefix.wholeMask);
  if (!last.given || whole != last.head) last = {whole, askCollator(entry, prefix), true};
  return last.order;
}

int SortedRows::askCollator(const Entry& entry, const Prefix& prefix) const {
  return collation_->textCompare(textOf(entry).substr(0, prefix.text.size()), prefix.text);
}

// The first row from `from` on at which `stop` is true; count() when it is true at none.
template <class Stop>
std::int32_t SortedRows::walk(std::int32_t from, Stop stop) const {
  if (from >= count_) return count_;
  const Place start = placeOf(from);
  std::size_t index = start.index;
  std::int32_t row = from;
  for (std::size_t block = start.block; block < blocks_.size(); ++block, index = 0) {
    const Block& rows = *blocks_[block];
    for (; index < rows.count; ++index, ++row) {
      if (stop(rows.entries[index])) return row;
    }
  }
  return count_;
}

SortedRows::Walk SortedRows::findPrefix(TextView prefix, std::int32_t from) const {
  const Prefix wanted = makePrefix(prefix);
  Verdict last;
  int order = -1;
  const std::int32_t row = walk(from, [&](const Entry& entry) {
    order = comparePrefix(entry, wanted, last);
    return order >= 0;
  });
  return {row, order == 0};
}

std::int32_t SortedRows::endOfRun(TextView prefix, std::int32_t from) const {
  const Prefix wanted = makePrefix(prefix);
  Verdict last;
  const auto leavesRun = [&](const Entry& entry) {
    return comparePrefix(entry, wanted, last) != 0;
  };
  return walk(from + 1, leavesRun) - 1;
}

std::vector<SortedRows::Run> SortedRows::equalRuns() const {
  std::vector<Run> runs;
  const Entry* first = nullptr;
  Run run;
  std::int32_t row = 0;
  const auto endRun = [&] {
    if (run.last > run.first) runs.push_back(run);
  };
  for (const auto& block : blocks_) {
    for (std::size_t i = 0; i < block->count; ++i, ++row) {
      const Entry& entry = block->entries[i];
      if (first != nullptr && !headsDecide(*first, entry) && compare(*first, entry) == 0) {
        run.last = row;
        continue;
      }
      endRun();
      first = &entry;
      run = {row, row};
    }
  }
  endRun();
  return runs;
}

}  // namespace termvik
