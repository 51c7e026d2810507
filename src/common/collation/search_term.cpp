// SPDX-License-Identifier: MIT
#include "common/collation/search_term.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "collator.h"
#include "common/system/codepage.h"
#include "find_letters.h"
#include "letter_weights.h"
#include "letters.h"

namespace termvik {

namespace {

// No collation joins more characters than this into one step.
constexpr std::size_t kLongestContext = 4;

bool sameWeights(const CollationElement& a, const CollationElement& b) {
  return a.primary == b.primary && a.secondary == b.secondary;
}

// Where a text's characters begin and end among its letters. To be asked in rising order.
class CharacterEdges {
 public:
  CharacterEdges(const Letters& letters, TextView text) : letters_(letters), text_(text) {}

  bool isEdge(std::size_t place) {
    while (before_ < place) before_ += letters_.of(text_[index_++]).count;
    return before_ == place;
  }

 private:
  const Letters& letters_;
  TextView text_;
  std::size_t index_ = 0;   // of the character that the walk has come to
  std::size_t before_ = 0;  // letters of the characters ahead of it
};

// The letters of a term; the last of them is kNoLetter where it has one that no known character is.
std::vector<Letter> spell(const Collation& collation, TextView term) {
  std::vector<Letter> letters(Letters::roomFor(term));
  const Letters::Spelling spelling = collation.letters().spell(term, letters.data());
  letters.resize(spelling.count);
  if (spelling.known) return letters;
  const LetterWeights weights(collation.collator(), collation.letters(), ansiCharacters());
  const auto elements = collation.collator().elements(term);
  for (std::size_t next = 0; next < elements.size();) {
    letters.push_back(weights.letterAt(elements, next));
    if (letters.back() == kNoLetter) break;
  }
  return letters;
}

}  // namespace

SearchTerm::SearchTerm(const Collation& collation, TextView term, const LetterCounts& counts)
    : collation_(&collation), term_(term) {
  std::vector<Letter> letters = spell(collation, term);
  if (letters.empty()) return;
  firstLetter_ = letters.front();
  if (letters.back() != kNoLetter) {
    letters_ = std::make_unique<WantedLetters>(std::move(letters), counts);
  }
}

SearchTerm::SearchTerm(SearchTerm&&) noexcept = default;
SearchTerm::~SearchTerm() = default;

bool SearchTerm::occursIn(TextView text) const {
  std::vector<Letter> letters(Letters::roomFor(text));
  const Letters::Spelling spelling = collation_->letters().spell(text, letters.data());
  if (!spelling.known) return occursByCollator(text);
  return occursIn(text, LettersView(letters.data(), spelling.count));
}

bool SearchTerm::occursIn(TextView text, LettersView letters) const {
  if (!letters_) return false;
  CharacterEdges edges(collation_->letters(), text);
  const auto isWhole = [&](std::size_t place) {
    return edges.isEdge(place) && CharacterEdges(edges).isEdge(place + letters_->size());
  };
  return letters_->findIn(letters, isWhole) != WantedLetters::kNotFound;
}

// The way for texts whose characters depend on their neighbours or are unknown: for every start,
// follow the collation of text and term as far as they agree, then ask the collator.
bool SearchTerm::occursByCollator(TextView text) const {
  const auto elements = collation_->collator().elements(term_);
  for (std::size_t start = 0; start < text.size(); ++start) {
    if (const auto letter = collation_->firstLetter(text.substr(start))) {
      if (*letter != firstLetter_) continue;
    }
    std::size_t window = 2 * kLongestContext;
    std::size_t agreed = 0;
    std::vector<CollationElement> here;
    do {
      window = std::min(2 * window, text.size() - start);
      here = collation_->collator().elements(text.substr(start, window));
      const auto parted =
          std::mismatch(here.begin(), here.end(), elements.begin(), elements.end(), sameWeights);
      agreed = static_cast<std::size_t>(parted.first - here.begin());
      // The end of the window can cut a step in two: what parts there may yet agree.
    } while (agreed < elements.size() && agreed + kLongestContext >= here.size() &&
             start + window < text.size());
    const std::size_t end = agreed == 0 ? 0 : static_cast<std::size_t>(here[agreed - 1].end);
    if (equalsStretchNear(text, start, start + end)) return true;
  }
  return false;
}

// Cutting a stretch out of its neighbours can change its last steps, so the ends around `end` are
// all asked for.
bool SearchTerm::equalsStretchNear(TextView text, std::size_t start, std::size_t end) const {
  const std::size_t from = std::max(start + 1, end < kLongestContext ? 0 : end - kLongestContext);
  const std::size_t to = std::min(text.size(), end + kLongestContext);
  for (std::size_t stop = from; stop <= to; ++stop) {
    if (collation_->equal(text.substr(start, stop - start), term_)) return true;
  }
  return false;
}

}  // namespace termvik
