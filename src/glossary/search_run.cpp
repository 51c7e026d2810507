#include "glossary/search_run.h"

#include <algorithm>
#include <utility>

namespace termvik {

SearchRun::SearchRun(std::vector<SearchTerm> terms)
    : terms_(std::move(terms)), next_(terms_.size()) {}

void SearchRun::startIn(const EntryTexts& texts) {
  texts_ = &texts;
  for (std::size_t i = 0; i < terms_.size(); ++i) next_[i] = texts.firstWith(terms_[i], 0);
  nearest_ = 0;
}

std::optional<std::size_t> SearchRun::lookCloser(const EntryTexts& texts, std::size_t first,
                                                 std::size_t end) {
  if (texts_ != &texts) startIn(texts);
  std::optional<std::size_t> hit;
  for (std::size_t i = 0; i < terms_.size() && !hit; ++i) {
    if (next_[i] < first) next_[i] = texts.firstWith(terms_[i], first);
    if (next_[i] < end) hit = next_[i];
  }
  if (!next_.empty()) nearest_ = *std::min_element(next_.begin(), next_.end());
  return hit;
}

}  // namespace termvik
