#include "common/letters.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <set>
#include <utility>

namespace termvik {

namespace {

constexpr std::size_t kCharacterCount = 0x10000;
constexpr std::size_t kMostLetters = std::numeric_limits<Letter>::max();

}  // namespace

Letters::Letters(const Collator& collator, TextView characters) : table_(kCharacterCount) {
  if (!collator.comparesByElements()) return;
  const Text context = collator.contextCharacters(characters);
  std::vector<std::pair<char16_t, std::vector<Weights>>> spelled;
  std::set<Weights> all;
  for (const char16_t character : characters) {
    if (context.find(character) != Text::npos) continue;
    const auto elements = collator.elements(TextView(&character, 1));
    std::vector<Weights> letters;
    for (std::size_t next = 0; next < elements.size();) {
      letters.push_back(weightsAt(elements, next));
    }
    const bool accentAlone = std::any_of(letters.begin(), letters.end(),
                                         [](const Weights& w) { return w.primary == 0; });
    if (accentAlone || letters.size() > CharacterLetters::kMost) continue;
    all.insert(letters.begin(), letters.end());
    spelled.emplace_back(character, std::move(letters));
  }
  std::vector<Weights> sorted(all.begin(), all.end());
  if (sorted.size() > kMostLetters || !ranksLetterByLetter(sorted)) return;
  weights_ = std::move(sorted);
  rankLetters();
  for (const auto& [character, letters] : spelled) {
    CharacterLetters& entry = table_[character];
    entry.count = static_cast<std::uint8_t>(letters.size());
    for (std::size_t i = 0; i < letters.size(); ++i) {
      const auto place = std::lower_bound(weights_.begin(), weights_.end(), letters[i]);
      entry.letters[i] = static_cast<Letter>(place - weights_.begin() + 1);
    }
  }
}

// Accents that stand behind a letter's first element belong to that letter.
Letters::Weights Letters::weightsAt(const std::vector<CollationElement>& elements,
                                    std::size_t& next) {
  Weights weights{elements[next].primary, {elements[next].secondary}};
  for (++next; next < elements.size() && elements[next].primary == 0; ++next) {
    weights.secondaries.push_back(elements[next].secondary);
  }
  return weights;
}

// The collator compares the secondary weights of two texts as one row of numbers; going letter by
// letter gives the same only when an added accent outweighs whatever letter may follow it.
bool Letters::ranksLetterByLetter(const std::vector<Weights>& sorted) {
  std::uint32_t mostOfLetter = 0;
  std::uint32_t leastAdded = std::numeric_limits<std::uint32_t>::max();
  for (const Weights& weights : sorted) {
    mostOfLetter = std::max(mostOfLetter, weights.secondaries.front());
    leastAdded = std::min(leastAdded, weights.secondaries.size() < 2
                                          ? leastAdded
                                          : *std::min_element(weights.secondaries.begin() + 1,
                                                              weights.secondaries.end()));
  }
  return mostOfLetter < leastAdded;
}

void Letters::rankLetters() {
  std::uint8_t rank = 0;
  for (std::size_t i = 0; i < weights_.size(); ++i) {
    if (i == 0 || weights_[i].primary != weights_[i - 1].primary) ++rank;
    ranks_[i + 1] = rank;
  }
}

Letters::Spelling Letters::spell(TextView text, Letter* out) const {
  Letter* next = out;
  unsigned otherThanOne = 0;
  for (const char16_t character : text) {
    const CharacterLetters& entry = of(character);
    if (!entry.known()) return {.known = false, .oneLetterEach = false};
    // Writes more than counts, always as much: quicker than to look how much (bench/full_search).
    std::memcpy(next, &entry, sizeof entry);
    next += entry.count;
    otherThanOne |= entry.count ^ 1U;
  }
  return {.count = static_cast<std::size_t>(next - out), .oneLetterEach = otherThanOne == 0};
}

Letter Letters::letterAt(const std::vector<CollationElement>& elements, std::size_t& next) const {
  const Weights weights = weightsAt(elements, next);
  const auto place = std::lower_bound(weights_.begin(), weights_.end(), weights);
  if (place == weights_.end() || *place != weights) return kNoLetter;
  return static_cast<Letter>(place - weights_.begin() + 1);
}

}  // namespace termvik
