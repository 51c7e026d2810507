// SPDX-License-Identifier: MIT
#include "packed_weights.h"

#include <algorithm>
#include <cstring>

#include "letters.h"

namespace termvik::bench {

PackedWeights::PackedWeights(const Collation& collation, const std::vector<TextView>& words) {
  for (const TextView word : words) {
    const std::string weights = weightsOf(collation, word);
    if (weights.empty()) continue;
    begins_.push_back(static_cast<std::uint32_t>(bytes_.size()));
    bytes_.append(weights).push_back('\0');
  }
}

std::string PackedWeights::weightsOf(const Collation& collation, TextView word) {
  std::vector<Letter> letters(Letters::roomFor(word));
  letters.resize(collation.letters().spell(word, letters.data()).count);
  return {letters.begin(), letters.end()};
}

std::vector<const char*> PackedWeights::sorted() const {
  std::vector<const char*> places;
  places.reserve(begins_.size());
  for (const std::uint32_t begin : begins_) places.push_back(bytes_.data() + begin);
  std::sort(places.begin(), places.end(),
            [](const char* a, const char* b) { return std::strcmp(a, b) < 0; });
  return places;
}

void PackedWeights::sort() {
  std::string inOrder;
  inOrder.reserve(bytes_.size());
  const std::vector<const char*> places = sorted();
  begins_.clear();
  for (const char* place : places) {
    begins_.push_back(static_cast<std::uint32_t>(inOrder.size()));
    inOrder.append(place).push_back('\0');
  }
  bytes_ = std::move(inOrder);
}

std::size_t PackedWeights::countFrom(const std::string& weights) const {
  std::size_t count = 0;
  for (const std::uint32_t begin : begins_) {
    if (std::strncmp(bytes_.data() + begin, weights.data(), weights.size()) >= 0) ++count;
  }
  return count;
}

std::size_t PackedWeights::countDoublets(const std::vector<const char*>& places) {
  std::size_t count = 0;
  for (std::size_t i = 1; i < places.size(); ++i) {
    if (std::strcmp(places[i - 1], places[i]) == 0) ++count;
  }
  return count;
}

}  // namespace termvik::bench
