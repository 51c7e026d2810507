#include "common/search_term.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "common/codepage.h"
#include "common/letter_weights.h"

namespace termvik {

namespace {

// Longer terms go through a search whose cost does not grow with the term: a pasted text of one
// letter 100,000 times over must not stall the program.
constexpr std::size_t kLongTerm = 64;

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

}  // namespace

SearchTerm::SearchTerm(const Collation& collation, TextView term, const LetterCounts& counts)
    : collation_(&collation), term_(term), elements_(collation.collator().elements(term)) {
  spell();
  if (!letters_ || letters_->empty()) return;
  probes_ = rarestLetters(counts);
  if (letters_->size() > kLongTerm) prepareLongTerm();
}

void SearchTerm::spell() {
  const Letters& letters = collation_->letters();
  std::vector<Letter> spelled(Letters::roomFor(term_));
  const Letters::Spelling spelling = letters.spell(term_, spelled.data());
  spelled.resize(spelling.count);
  if (!spelling.known) {
    const LetterWeights weights(collation_->collator(), letters, ansiCharacters());
    for (std::size_t next = 0; next < elements_.size();) {
      spelled.push_back(weights.letterAt(elements_, next));
      if (spelled.back() == kNoLetter) break;
    }
  }
  if (!spelled.empty()) firstLetter_ = spelled.front();
  if (spelled.empty() || spelled.back() != kNoLetter) letters_ = std::move(spelled);
}

bool SearchTerm::occursIn(TextView text) const {
  std::vector<Letter> letters(Letters::roomFor(text));
  const Letters::Spelling spelling = collation_->letters().spell(text, letters.data());
  if (!spelling.known) return occursByCollator(text);
  return occursIn(text, LettersView(letters.data(), spelling.count));
}

bool SearchTerm::occursIn(TextView text, LettersView letters) const {
  if (!letters_) return false;
  CharacterEdges edges(collation_->letters(), text);
  return firstPlace(letters, [&](std::size_t place) {
           if (!edges.isEdge(place)) return false;
           return CharacterEdges(edges).isEdge(place + letters_->size());
         }) != kNotFound;
}

std::size_t SearchTerm::find(LettersView letters) const {
  if (!letters_) return kNotFound;
  return firstPlace(letters, [](std::size_t) { return true; });
}

template <class Accept>
std::size_t SearchTerm::firstPlace(LettersView letters, Accept accept) const {
  const LettersView term(letters_->data(), letters_->size());
  if (term.empty()) return 0;
  if (letters.size() < term.size()) return kNotFound;
  if (term.size() > kLongTerm) return firstPlaceOfLongTerm(letters, accept);
  for (std::size_t from = 0; from + term.size() <= letters.size();) {
    const std::size_t found = findLetters(letters.substr(from), term, probes_);
    if (found == kNotFound) return kNotFound;
    if (accept(from + found)) return from + found;
    from += found + 1;
  }
  return kNotFound;
}

// The indices of the term's rarest letters; of a short term some twice.
Probes SearchTerm::rarestLetters(const LetterCounts& counts) const {
  std::vector<std::size_t> indices(letters_->size());
  std::iota(indices.begin(), indices.end(), 0);
  std::stable_sort(indices.begin(), indices.end(), [&](std::size_t a, std::size_t b) {
    return counts.at((*letters_)[a]) < counts.at((*letters_)[b]);
  });
  Probes rarest{};
  for (std::size_t i = 0; i < rarest.size(); ++i) rarest[i] = indices[i % indices.size()];
  return rarest;
}

// The search of Knuth, Morris and Pratt: reads every letter once.
template <class Accept>
std::size_t SearchTerm::firstPlaceOfLongTerm(LettersView letters, Accept accept) const {
  const std::vector<Letter>& term = *letters_;
  std::size_t matched = 0;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    while (matched > 0 && term[matched] != letters[i]) matched = restarts_[matched - 1];
    if (term[matched] == letters[i]) ++matched;
    if (matched < term.size()) continue;
    const std::size_t place = i + 1 - matched;
    if (accept(place)) return place;
    matched = restarts_.back();
  }
  return kNotFound;
}

void SearchTerm::prepareLongTerm() {
  const std::vector<Letter>& term = *letters_;
  restarts_.assign(term.size(), 0);
  std::size_t matched = 0;
  for (std::size_t i = 1; i < term.size(); ++i) {
    while (matched > 0 && term[matched] != term[i]) matched = restarts_[matched - 1];
    if (term[matched] == term[i]) ++matched;
    restarts_[i] = matched;
  }
}

// The road for texts whose characters depend on their neighbours or are unknown: for every start,
// follow the collation of text and term as far as they agree, then ask the collator.
bool SearchTerm::occursByCollator(TextView text) const {
  if (collation_->isEmpty(term_)) return true;
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
          std::mismatch(here.begin(), here.end(), elements_.begin(), elements_.end(), sameWeights);
      agreed = static_cast<std::size_t>(parted.first - here.begin());
      // The end of the window can cut a step in two: what parts there may yet agree.
    } while (agreed < elements_.size() && agreed + kLongestContext >= here.size() &&
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
