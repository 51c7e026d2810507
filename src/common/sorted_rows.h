// The rows of the sorted list: each a text and a number, kept in rising order as they are added.
//
// One class for all toolkits. Rows count from 0. The rows lie in blocks of a few hundred, and a row
// carries the beginning of its collation with it, so that finding a row's place, its rank, and
// walking along the rows touch little memory even with 300,000 of them.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "common/collation.h"
#include "common/text.h"
#include "common/text_arena.h"

namespace termvik {

class SortedRows {
 public:
  explicit SortedRows(const Collation& collation);

  void clear();

  // Adds a row behind all rows that are not greater, with the number 0, and gives its row number.
  std::int32_t add(TextView text);

  std::int32_t count() const { return count_; }

  // `row` from 0 to count() - 1. A text is good until clear().
  TextView text(std::int32_t row) const;
  std::int32_t itemData(std::int32_t row) const;
  void setItemData(std::int32_t row, std::int32_t itemData);

  // Replaces the text where it stands: the row keeps its place, whatever the order says.
  void setText(std::int32_t row, TextView text);

  // Where a walk over the rows ended.
  struct Walk {
    std::int32_t row = 0;  // the row that decided; count() when no row did
    bool fits = false;     // its beginning equals the prefix; otherwise it sorts behind the prefix
  };

  // Walks from row `from` downwards and compares the first `prefix.size()` characters of each row
  // with `prefix`, until a row fits or sorts behind it.
  Walk findPrefix(TextView prefix, std::int32_t from) const;

  // The last row of the unbroken run of rows from `from` on that begin with `prefix`, given that
  // row `from` does.
  std::int32_t endOfRun(TextView prefix, std::int32_t from) const;

  struct Run {
    std::int32_t first = 0;
    std::int32_t last = 0;

    bool operator==(const Run&) const = default;
  };

  // All unbroken runs of two or more rows whose texts are equal, rising.
  std::vector<Run> equalRuns() const;

 private:
  static constexpr std::size_t kHead = 12;
  static constexpr std::size_t kBlockRows = 256;

  // The first ranks of a text, filled up with 0, as numbers that compare like them.
  struct Head {
    std::uint64_t high = 0;  // eight ranks
    std::uint32_t low = 0;   // four ranks

    bool operator==(const Head&) const = default;
    Head masked(const Head& mask) const { return {high & mask.high, low & mask.low}; }
    bool isBefore(const Head& other) const {
      return high != other.high ? high < other.high : low < other.low;
    }
  };

  struct Row {
    const char16_t* text = nullptr;
    const std::uint8_t* key = nullptr;  // ranks, 0, then letters if any has an accent, 0
    std::int32_t length = 0;            // of the text, in characters
    std::int32_t itemData = 0;
  };

  // What a walk sees of a row without going to the row itself.
  struct Entry {
    std::uint64_t headHigh = 0;
    std::uint32_t headLow = 0;
    std::uint32_t id = 0;  // index into rows_, with the two marks below

    Head head() const { return {headHigh, headLow}; }
  };
  static constexpr std::uint32_t kId = (1U << 30U) - 1;
  static constexpr std::uint32_t kDense = 1U << 30U;  // every character has a letter: the head of a
                                                      // beginning is the beginning of the head
  static constexpr std::uint32_t kPlain = 1U << 31U;  // every character is one letter, no accents

  struct Block {
    std::size_t count = 0;
    std::array<Entry, kBlockRows> entries;
  };

  struct Place {
    std::size_t block = 0;
    std::size_t index = 0;
  };

  // A prefix as the walk compares it.
  struct Prefix {
    TextView text;
    Head head{};         // cut to the ranks that can decide about a dense row
    Head mask{};         // these ranks of a head
    bool plain = false;  // a plain row whose head agrees fits
    Head wholeMask{};    // the ranks that are all of a plain row's beginning; none when a head is
                         // too short for that
  };

  // What the collator has said of the beginning of the last plain row: it is the same for the next
  // one with the same ranks. Keeps a walk with an accent or a foreign letter as fast as others.
  struct Verdict {
    Head head{};
    int order = 0;
    bool given = false;
  };

  static Head makeHead(const std::uint8_t* ranks, std::size_t count);
  Entry makeEntry(TextView text);
  void makeKey(TextView text, Row& row, Entry& entry);
  int compare(const Entry& a, const Entry& b) const;
  const Row& rowOf(const Entry& entry) const { return rows_[entry.id & kId]; }
  TextView textOf(const Entry& entry) const;
  Place placeOf(std::int32_t row) const;
  const Entry& entryAt(std::int32_t row) const;
  static bool headsDecide(const Entry& a, const Entry& b) {
    return a.headHigh != 0 && b.headHigh != 0 && a.head() != b.head();
  }
  bool isBefore(const Entry& a, const Entry& b) const;
  Place insert(const Entry& entry);
  void splitBlock(std::size_t block);
  std::int32_t rankOf(const Place& place) const;
  void rebuildSums();
  Prefix makePrefix(TextView text) const;
  int comparePrefix(const Entry& entry, const Prefix& prefix, Verdict& last) const;
  int askCollator(const Entry& entry, const Prefix& prefix) const;
  template <class Stop>
  std::int32_t walk(std::int32_t from, Stop stop) const;

  const Collation* collation_;
  std::vector<Row> rows_;  // in the order in which they were added
  std::vector<std::unique_ptr<Block>> blocks_;
  std::vector<Entry> firsts_;       // the first entry of each block
  std::vector<std::int32_t> sums_;  // Fenwick tree over the blocks' counts
  std::int32_t count_ = 0;
  std::int32_t newest_ = -1;  // the row of rows_.back()
  TextArena<char16_t> texts_;
  TextArena<std::uint8_t> keys_;
  std::vector<Letter> scratch_;
  std::vector<std::uint8_t> scratchKey_;
};

}  // namespace termvik
