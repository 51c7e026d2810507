// SPDX-License-Identifier: MIT
#include "find_letters.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <utility>

namespace termvik {

namespace {

// One of the wanted letters, and where it stands when they stand at place 0.
struct Probe {
  const Letter* row;
  Letter letter;

  unsigned agreesAt(std::size_t place) const { return row[place] == letter ? 1 : 0; }
};

// True when all probes agree at one of `Count` places. Has no branch, so that the compiler compares
// many letters at a time (bench/full_search).
template <std::size_t Count>
bool agreeInside(const Probe& a, const Probe& b, const Probe& c, std::size_t place) {
  unsigned char any = 0;
  for (std::size_t i = place; i < place + Count; ++i) {
    any = static_cast<unsigned char>(any | (a.agreesAt(i) & b.agreesAt(i) & c.agreesAt(i)));
  }
  return any != 0;
}

constexpr std::size_t kStride = 64;

}  // namespace

WantedLetters::WantedLetters(std::vector<Letter> wanted, const LetterCounts& counts)
    : wanted_(std::move(wanted)) {
  std::vector<std::size_t> indices(size());
  std::iota(indices.begin(), indices.end(), 0);
  std::stable_sort(indices.begin(), indices.end(), [&](std::size_t a, std::size_t b) {
    return counts.at(wanted_[a]) < counts.at(wanted_[b]);
  });
  for (std::size_t i = 0; i < rarest_.size(); ++i) rarest_.at(i) = indices[i % indices.size()];
  if (size() <= kLong) return;
  restarts_.push_back(0);
  for (std::size_t i = 1; i < size(); ++i) {
    restarts_.push_back(matchedWith(wanted_[i], restarts_.back()));
  }
}

// The first place from `from` on, of few letters. Looks at the rarest of them first.
std::size_t WantedLetters::next(LettersView letters, std::size_t from) const {
  if (letters.size() < from + size()) return kNotFound;
  const auto probeOf = [&](std::size_t i) { return Probe{letters.data() + i, wanted_[i]}; };
  const Probe a = probeOf(rarest_[0]);
  const Probe b = probeOf(rarest_[1]);
  const Probe c = probeOf(rarest_[2]);
  const std::size_t places = letters.size() - size() + 1;
  for (std::size_t place = from; place < places;) {
    if (place + kStride <= places && !agreeInside<kStride>(a, b, c, place)) {
      place += kStride;
      continue;
    }
    for (const std::size_t end = std::min(place + kStride, places); place < end; ++place) {
      const bool found = (a.agreesAt(place) & b.agreesAt(place) & c.agreesAt(place)) != 0 &&
                         std::memcmp(letters.data() + place, wanted_.data(), size()) == 0;
      if (found) return place;
    }
  }
  return kNotFound;
}

}  // namespace termvik
