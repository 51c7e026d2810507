#include "common/find_letters.h"

#include <algorithm>
#include <cstring>

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

std::size_t findLetters(LettersView letters, LettersView wanted, const Probes& probes) {
  if (letters.size() < wanted.size()) return LettersView::npos;
  const auto probeOf = [&](std::size_t i) { return Probe{letters.data() + i, wanted[i]}; };
  const Probe a = probeOf(probes[0]);
  const Probe b = probeOf(probes[1]);
  const Probe c = probeOf(probes[2]);
  const std::size_t places = letters.size() - wanted.size() + 1;
  for (std::size_t place = 0; place < places;) {
    if (place + kStride <= places && !agreeInside<kStride>(a, b, c, place)) {
      place += kStride;
      continue;
    }
    for (const std::size_t end = std::min(place + kStride, places); place < end; ++place) {
      const bool found = (a.agreesAt(place) & b.agreesAt(place) & c.agreesAt(place)) != 0 &&
                         std::memcmp(letters.data() + place, wanted.data(), wanted.size()) == 0;
      if (found) return place;
    }
  }
  return LettersView::npos;
}

}  // namespace termvik
