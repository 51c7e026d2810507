// SPDX-License-Identifier: MIT
// The rows of the sorted list: each a text and a number, in rising order.
//
// One class for all toolkits. Rows count from 0. A row carries the beginning of its collation with
// it, so that a walk along the rows touches little memory even with 300,000 of them.
#pragma once

#include <cstdint>
#include <vector>

#include "common/collation/collation.h"
#include "common/collation/text_arena.h"
#include "common/system/large_vector.h"
#include "common/system/text.h"

namespace termvik {

class WantedText;

class SortedRows {
 public:
  explicit SortedRows(const Collation& collation);

  void clear();

  // Adds a row; it will stand after all rows that are not greater. The rows come into order when
  // they are first looked at after an addition.
  void add(TextView text, std::int32_t itemData);

  std::int32_t count() const { return static_cast<std::int32_t>(rows_.size()); }

  // The row that was added last; -1 when there is none.
  std::int32_t newest() const;

  // `row` from 0 to count() - 1. A text is good until clear().
  TextView text(std::int32_t row) const { return textOf(entryAt(row)); }
  std::int32_t itemData(std::int32_t row) const { return rowOf(entryAt(row)).itemData; }

  // Replaces the text where it stands: the row keeps its place, whatever the order says.
  void setText(std::int32_t row, TextView text);

  // How far the rows fit a text. A row begins with a text of n characters when its first n
  // characters, or all of a shorter row, equal it.
  struct Fit {
    std::int32_t row = 0;    // the first that begins with the part; 0 when there is none
    std::size_t length = 0;  // the longest leading part of the text that any row begins with
  };

  // Among the rows from `from` on. A part never ends between the halves of a surrogate pair.
  Fit bestFit(TextView text, std::int32_t from = 0) const;

  // The last row of the unbroken run of rows from `from` on that begin with `text`, given that row
  // `from` does.
  std::int32_t endOfRun(TextView text, std::int32_t from) const;

  struct Run {
    std::int32_t first = 0;
    std::int32_t last = 0;

    bool operator==(const Run&) const = default;
  };

  // All unbroken runs of two or more rows whose texts are equal, rising.
  std::vector<Run> equalRuns() const;

 private:
  static constexpr std::size_t kHead = 12;

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
    std::uint32_t length = 0;           // of the text, in characters
    std::int32_t itemData = 0;
  };

  // What a walk sees of a row without going to the row itself.
  struct Entry {
    std::uint64_t headHigh = 0;
    std::uint32_t headLow = 0;
    std::uint32_t id = 0;  // index into rows_, with the marks below

    Head head() const { return {headHigh, headLow}; }
  };
  static constexpr std::uint32_t kId = (1U << 30U) - 1;
  static constexpr std::uint32_t kReplaced = 1U << 30U;  // stands where its former text belongs
  static constexpr std::uint32_t kPlain = 1U << 31U;  // every character is one letter, no accents

  // The ranks that a row must have at its beginning.
  struct Lead {
    Head head{};
    Head mask{};  // these ranks of a head

    bool begins(const Entry& entry) const { return entry.head().masked(mask) == head; }
  };

  static Head makeHead(const std::uint8_t* ranks, std::size_t count);
  Entry makeEntry(std::uint32_t id, TextView text);
  void makeKey(TextView text, Row& row, Entry& entry);
  int compare(const Entry& a, const Entry& b) const;
  const Row& rowOf(const Entry& entry) const { return rows_[entry.id & kId]; }
  TextView textOf(const Entry& entry) const;
  const LargeVector<Entry>& ordered() const;
  const Entry& entryAt(std::int32_t row) const { return ordered()[static_cast<std::size_t>(row)]; }
  static bool headsDecide(const Entry& a, const Entry& b) {
    return a.headHigh != 0 && b.headHigh != 0 && a.head() != b.head();
  }
  bool isBefore(const Entry& a, const Entry& b) const;
  static Head maskOf(std::size_t ranks);
  static Lead leadOf(const WantedText& text, std::size_t length);
  static bool isPlain(const Entry& entry) { return (entry.id & kPlain) != 0; }
  bool isKeyed(const Entry& entry) const {
    return entry.headHigh != 0 || rowOf(entry).key != nullptr;
  }

  const Collation* collation_;
  LargeVector<Row> rows_;               // in the order in which they were added
  mutable LargeVector<Entry> entries_;  // the ordered ones, then those added since
  mutable std::size_t orderedCount_ = 0;
  TextArena<char16_t> texts_;
  TextArena<std::uint8_t> keys_;
  std::vector<Letter> scratch_;
  std::vector<std::uint8_t> scratchKey_;
};

}  // namespace termvik
