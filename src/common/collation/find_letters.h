// SPDX-License-Identifier: MIT
// The search for a few letters in very many: the inner loop of full search.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "common/collation/search_term.h"

namespace termvik {

// The letters that are looked for, made ready once.
class WantedLetters {
 public:
  static constexpr std::size_t kNotFound = LettersView::npos;

  // `wanted` has at least one letter.
  WantedLetters(std::vector<Letter> wanted, const LetterCounts& counts);

  std::size_t size() const { return wanted_.size(); }
  Letter first() const { return wanted_.front(); }

  // The first place in `letters` where they stand and that `accept` agrees to, which is asked in
  // rising order; kNotFound when there is none.
  template <class Accept>
  std::size_t findIn(LettersView letters, Accept accept) const {
    if (letters.size() < size()) return kNotFound;
    return size() > kLong ? findLongIn(letters, accept) : findShortIn(letters, accept);
  }

 private:
  // More letters go through a search whose cost does not grow with their number: a pasted text of
  // one letter 100,000 times over must not stall the program.
  static constexpr std::size_t kLong = 64;

  template <class Accept>
  std::size_t findShortIn(LettersView letters, Accept accept) const {
    for (std::size_t place = next(letters, 0); place != kNotFound;) {
      if (accept(place)) return place;
      place = next(letters, place + 1);
    }
    return kNotFound;
  }

  // The search of Knuth, Morris and Pratt: reads every letter once.
  template <class Accept>
  std::size_t findLongIn(LettersView letters, Accept accept) const {
    std::size_t matched = 0;
    for (std::size_t i = 0; i < letters.size(); ++i) {
      matched = matchedWith(letters[i], matched);
      if (matched < size()) continue;
      if (accept(i + 1 - matched)) return i + 1 - matched;
      matched =
          restarts_.back();  // `aaa` refused in `aaaa`: the next place has two letters already
    }
    return kNotFound;
  }

  std::size_t next(LettersView letters, std::size_t from) const;

  // How many of the wanted letters end in `letter`, when `matched` of them stand ahead of it.
  std::size_t matchedWith(Letter letter, std::size_t matched) const {
    while (matched > 0 && wanted_[matched] != letter) matched = restarts_[matched - 1];
    return wanted_[matched] == letter ? matched + 1 : 0;
  }

  std::vector<Letter> wanted_;
  std::array<std::size_t, 3> rarest_{};  // their indices; of a short term some twice
  std::vector<std::size_t> restarts_;    // of many letters: after each of them, how many of those
                                         // up to it are also the first ones
};

}  // namespace termvik
