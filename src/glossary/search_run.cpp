#include "glossary/search_run.h"

#include <algorithm>
#include <utility>

namespace termvik {

SearchRun::SearchRun(std::vector<SearchTerm> terms)
    : terms_(std::move(terms)), next_(terms_.size()) {}

void SearchRun::startIn(const EntryTexts& texts) {
  if (texts_ == &texts) return;
  texts_ = &texts;
  for (std::size_t i = 0; i < terms_.size(); ++i) next_[i] = texts.firstWith(terms_[i], 0);
}

std::optional<std::size_t> SearchRun::firstHit(const EntryTexts& texts, std::size_t first,
                                               std::size_t end) {
  startIn(texts);
  for (std::size_t i = 0; i < terms_.size(); ++i) {
    if (next_[i] < first) next_[i] = texts.firstWith(terms_[i], first);
    if (next_[i] < end) return next_[i];
  }
  return std::nullopt;
}

std::size_t SearchRun::nextCandidate(const EntryTexts& texts, std::size_t first) {
  startIn(texts);
  const auto nearest = std::min_element(next_.begin(), next_.end());
  return nearest == next_.end() ? texts.size() : std::max(first, *nearest);
}

}  // namespace termvik
