// SPDX-License-Identifier: MIT
#include "wanted_text.h"

#include <algorithm>

#include "collator.h"
#include "letters.h"

namespace termvik {

namespace {

constexpr std::size_t kLongestContext =
    16;  // more characters than one collation element comes from

constexpr std::size_t kMostTried = 64;  // longer parts after the last one that fitted

std::uint32_t firstPrimary(const Collation& collation, TextView text) {
  const auto elements = collation.collator().elements(text);
  return elements.empty() ? 0 : elements.front().primary;
}

}  // namespace

WantedText::WantedText(const Collation& collation, TextView text)
    : collation_(&collation), text_(text) {
  ends_.reserve(text.size() + 1);
  for (const char16_t character : text) {
    const CharacterLetters& next = collation.letters().of(character);
    if (!next.known()) break;
    letters_.insert(letters_.end(), next.letters.begin(), next.letters.begin() + next.count);
    ends_.push_back(letters_.size());
  }
  if (known() < std::min<std::size_t>(text.size(), 2)) findFirstPrimaries();
}

// Not one of the whole text alone: a Danish `AA` is an å, but the part `A` of it is an a.
void WantedText::findFirstPrimaries() {
  for (std::size_t length = 1; length <= std::min(text_.size(), kLongestContext); ++length) {
    const std::uint32_t primary = firstPrimary(*collation_, text_.substr(0, length));
    if (length == 1 && primary == 0) return;  // the first letter is a later character's
    const auto found = std::find(firstPrimaries_.begin(), firstPrimaries_.end(), primary);
    if (found == firstPrimaries_.end()) firstPrimaries_.push_back(primary);
  }
}

// What is not known can change the letter ahead of it, as a combining ring makes `a` an `å`.
std::vector<std::uint8_t> WantedText::ranksOf(std::size_t length) const {
  const std::size_t sure =
      known() == text_.size() ? known() : std::max<std::size_t>(known(), 1) - 1;
  const std::size_t count = ends_[std::min(length, sure)];
  std::vector<std::uint8_t> ranks(count);
  std::transform(letters_.begin(), letters_.begin() + static_cast<std::ptrdiff_t>(count),
                 ranks.begin(), [&](Letter letter) { return collation_->letters().rank(letter); });
  return ranks;
}

WantedText::Fit WantedText::fitOf(TextView row, bool keyed) const {
  if (!keyed) return fitByCollator(row, {}, 1);
  const Fit fit = fitByLetters(row);
  if (known() == text_.size()) return fit;
  if (beginsApart(row)) return {.length = 0, .seen = 1};
  return fitByCollator(row, fit, known() + 1);
}

// Letter by letter. The parts need not grow together: `oeu` does not begin `œu`, whose first three
// characters are four letters, but `aeæ` begins `æae`, though `a` and `ae` do not.
WantedText::Fit WantedText::fitByLetters(TextView row) const {
  Fit fit;
  std::size_t count = 0;  // letters of the row so far
  for (std::size_t length = 1; length <= known(); ++length) {
    fit.seen = length;
    if (length <= row.size()) {
      const CharacterLetters& next = collation_->letters().of(row[length - 1]);
      for (std::size_t i = 0; i < next.count; ++i, ++count) {
        if (count == letters_.size() || letters_[count] != next.letters[i]) return fit;
      }
    } else if (ends_[length] > count) {
      return fit;
    }
    if (count == ends_[length] && !partsPair(length)) fit.length = length;
  }
  return fit;
}

// Part by part from `first` on, for what has no letters.
WantedText::Fit WantedText::fitByCollator(TextView row, Fit fit, std::size_t first) const {
  const auto parted = std::mismatch(row.begin(), row.end(), text_.begin(), text_.end());
  const auto same = static_cast<std::size_t>(parted.first - row.begin());
  if (same >= first) fit.length = first = same - (partsPair(same) ? 1 : 0);
  std::size_t failures = 0;
  for (std::size_t length = first; length <= text_.size() && failures < kMostTried; ++length) {
    fit.seen = std::max(fit.seen, length);
    if (partsPair(length)) continue;
    const bool fits = collation_->equal(row.substr(0, length), text_.substr(0, length));
    if (fits) fit.length = length;
    failures = fits ? 0 : failures + 1;
  }
  return fit;
}

// The two halves of a character beyond the basic plane are never looked up apart.
bool WantedText::partsPair(std::size_t length) const {
  const auto isHalf = [&](std::size_t at, char16_t first) { return (text_[at] & 0xFC00) == first; };
  return length > 0 && length < text_.size() && isHalf(length - 1, 0xD800) &&
         isHalf(length, 0xDC00);
}

// For a text whose first letter is not sure, as Greek: the row's first letter is that of none of
// the text's parts. A row can also begin with what is no letter, a soft hyphen.
bool WantedText::beginsApart(TextView row) const {
  if (firstPrimaries_.empty()) return false;
  const std::uint32_t primary = firstPrimary(*collation_, row.substr(0, 1));
  return primary != 0 && std::find(firstPrimaries_.begin(), firstPrimaries_.end(), primary) ==
                             firstPrimaries_.end();
}

}  // namespace termvik
