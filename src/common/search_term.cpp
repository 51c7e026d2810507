#include "common/search_term.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "common/find_bytes.h"

namespace termvik {

namespace {

// Longer terms go through a search whose cost does not grow with the term: a pasted text of one
// letter 100,000 times over must not stall the program.
constexpr std::size_t kLongTerm = 64;

// One letter in so many is rare (bench/full_search_bench).
constexpr std::uint64_t kRare = 100;

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
  const auto rarest =
      std::min_element(letters_->begin(), letters_->end(),
                       [&counts](Letter a, Letter b) { return counts.at(a) < counts.at(b); });
  const auto all = std::accumulate(counts.begin(), counts.end(), std::uint64_t{0});
  if (std::uint64_t{counts.at(*rarest)} * kRare <= all) rareLetter_ = rarest - letters_->begin();
  if (letters_->size() > kLongTerm) prepareLongTerm();
}

void SearchTerm::spell() {
  std::vector<Letter> letters;
  for (std::size_t next = 0; next < elements_.size();) {
    letters.push_back(collation_->letters().letterAt(elements_, next));
    firstLetter_ = letters.front();
    if (letters.back() == kNoLetter) return;
  }
  letters_ = std::move(letters);
}

bool SearchTerm::occursIn(TextView text) const {
  std::vector<Letter> letters;
  if (!collation_->letters().append(text, letters)) return occursByCollator(text);
  return occursIn(text, LettersView(letters.data(), letters.size()));
}

bool SearchTerm::occursIn(TextView text, LettersView letters) const {
  if (!letters_) return false;
  CharacterEdges begins(collation_->letters(), text);
  CharacterEdges ends(collation_->letters(), text);
  return firstPlace(letters, [&](std::size_t place) {
           return begins.isEdge(place) && ends.isEdge(place + letters_->size());
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
    const LettersView rest = letters.substr(from);
    const std::size_t found = rareLetter_ ? findByRareLetter(rest) : findBytes(rest, term);
    if (found == kNotFound) return kNotFound;
    if (accept(from + found)) return from + found;
    from += found + 1;
  }
  return kNotFound;
}

// Where a letter of the term is rare, going from one to the next is the fastest way.
std::size_t SearchTerm::findByRareLetter(LettersView letters) const {
  const LettersView term(letters_->data(), letters_->size());
  const std::size_t last = letters.size() - term.size();
  for (std::size_t place = 0; place <= last; ++place) {
    const void* found =
        std::memchr(letters.data() + place + *rareLetter_, term[*rareLetter_], last - place + 1);
    if (found == nullptr) return kNotFound;
    place =
        static_cast<std::size_t>(static_cast<const Letter*>(found) - letters.data()) - *rareLetter_;
    if (std::memcmp(letters.data() + place, term.data(), term.size()) == 0) return place;
  }
  return kNotFound;
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
