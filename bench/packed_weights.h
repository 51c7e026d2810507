// SPDX-License-Identifier: MIT
// The yardstick of the list: the ready weights of its words side by side, one byte a letter, and
// what is the least to do with them. Nobody who sorts, looks up or compares words can do without.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "common/collation/collation.h"
#include "common/system/text.h"

namespace termvik::bench {

class PackedWeights {
 public:
  // Words of unknown characters are left out.
  PackedWeights(const Collation& collation, const std::vector<TextView>& words);

  // The letters of a word: their numbers rise in the collator's order. Accents count as much as
  // letters here, which spares the yardstick the second look that the program has to take.
  static std::string weightsOf(const Collation& collation, TextView word);

  // The words' places in their order, by std::sort.
  std::vector<const char*> sorted() const;

  // Lays the weights themselves in their order.
  void sort();

  // One pass over all words: how many do not begin with `weights`, or with what sorts ahead of it.
  std::size_t countFrom(const std::string& weights) const;

  // One pass over sorted words: how many equal the one before.
  static std::size_t countDoublets(const std::vector<const char*>& places);

 private:
  std::string bytes_;  // a 0 after each word
  std::vector<std::uint32_t> begins_;
};

}  // namespace termvik::bench
