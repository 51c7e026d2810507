#include "common/search_term.h"

#include <algorithm>
#include <cstring>

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

// How many letters the characters from `index` on have until at least `wanted` of them are counted.
// `index` goes to the character behind them.
std::size_t countLetters(const Letters& letters, TextView text, std::size_t& index,
                         std::size_t wanted) {
  std::size_t count = 0;
  while (count < wanted) count += letters.of(text[index++]).count;
  return count;
}

}  // namespace

SearchTerm::SearchTerm(const Collation& collation, TextView term, const LetterCounts& counts)
    : collation_(&collation), term_(term), elements_(collation.collator().elements(term)) {
  spell();
  if (!letters_) return;
  const auto rarest =
      std::min_element(letters_->begin(), letters_->end(),
                       [&counts](Letter a, Letter b) { return counts.at(a) < counts.at(b); });
  rarest_ = static_cast<std::size_t>(rarest - letters_->begin());
}

void SearchTerm::spell() {
  std::vector<Letter> letters;
  for (std::size_t next = 0; next < elements_.size();) {
    letters.push_back(collation_->letters().letterAt(elements_, next));
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
  const Letters& table = collation_->letters();
  std::size_t index = 0;   // of the character that the walk has come to
  std::size_t before = 0;  // letters of the characters ahead of it
  for (std::size_t hit = find(letters, 0); hit != kNotFound; hit = find(letters, hit + 1)) {
    before += countLetters(table, text, index, hit - before);
    if (before != hit) continue;  // inside a character that has several letters
    std::size_t last = index;
    if (countLetters(table, text, last, letters_->size()) == letters_->size()) return true;
  }
  return false;
}

std::size_t SearchTerm::find(LettersView letters, std::size_t from) const {
  if (!letters_) return kNotFound;
  const LettersView term(letters_->data(), letters_->size());
  if (term.empty() || letters.size() < term.size()) return term.empty() ? from : kNotFound;
  if (term.size() > kLongTerm) {
    const auto start =
        letters.begin() + static_cast<std::ptrdiff_t>(std::min(from, letters.size()));
    const auto found = std::search(start, letters.end(),
                                   std::boyer_moore_searcher(letters_->begin(), letters_->end()));
    return found == letters.end() ? kNotFound : static_cast<std::size_t>(found - letters.begin());
  }
  const std::size_t lastStart = letters.size() - term.size();
  while (from <= lastStart) {
    const void* found =
        std::memchr(letters.data() + from + rarest_, term[rarest_], lastStart - from + 1);
    if (found == nullptr) return kNotFound;
    from = static_cast<std::size_t>(static_cast<const Letter*>(found) - letters.data()) - rarest_;
    if (std::memcmp(letters.data() + from, term.data(), term.size()) == 0) return from;
    ++from;
  }
  return kNotFound;
}

// The road for texts whose characters depend on their neighbours or are unknown: for every start,
// follow the collation of text and term as far as they agree, then ask the collator.
bool SearchTerm::occursByCollator(TextView text) const {
  if (collation_->isEmpty(term_)) return true;
  const Letters& table = collation_->letters();
  for (std::size_t start = 0; start < text.size(); ++start) {
    const CharacterLetters& first = table.of(text[start]);
    const bool standsAlone =
        first.known() && (start + 1 == text.size() || table.of(text[start + 1]).known());
    if (standsAlone && (first.count == 0 || !letters_ || first.letters[0] != letters_->front())) {
      continue;
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
    } while (agreed == here.size() && agreed < elements_.size() && start + window < text.size());
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
