// SPDX-License-Identifier: MIT
// A text that the rows are held to: how long a leading part of it a row begins with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "common/collation/collation.h"
#include "common/system/text.h"

namespace termvik {

class WantedText {
 public:
  // `text` must outlive it.
  WantedText(const Collation& collation, TextView text);

  TextView text() const { return text_; }

  struct Fit {
    std::size_t length = 0;  // characters of the longest part of the text that the row begins with
    std::size_t seen = 0;    // a row whose first `seen` characters are the same fits as far
  };

  // A row begins with the first p characters of the text when its own first p characters, or all of
  // a shorter row, equal them. `keyed`: every character of the row is known to Letters.
  Fit fitOf(TextView row, bool keyed) const;

  // The ranks of the letters that a row must begin with to fit `length` characters, as far as they
  // are sure whatever follows.
  std::vector<std::uint8_t> ranksOf(std::size_t length) const;

 private:
  std::size_t known() const { return ends_.size() - 1; }  // leading characters with letters
  bool partsPair(std::size_t length) const;
  void findFirstPrimaries();
  bool beginsApart(TextView row) const;
  Fit fitByLetters(TextView row) const;
  Fit fitByCollator(TextView row, Fit fit, std::size_t first) const;

  const Collation* collation_;
  TextView text_;
  std::vector<Letter> letters_;       // of the characters before the first that is not known
  std::vector<std::size_t> ends_{0};  // by a part's length: how many of the letters it has
  std::vector<std::uint32_t> firstPrimaries_;  // of its parts, where the first letter is not sure
};

}  // namespace termvik
