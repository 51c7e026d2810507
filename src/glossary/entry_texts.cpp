// SPDX-License-Identifier: MIT
#include "entry_texts.h"

namespace termvik {

void EntryTexts::clear() {
  folded_ = {};  // before what it is made of
  ranges_ = LargeVector<TextRange>();
  types_ = LargeVector<char16_t>();
}

void EntryTexts::reserve(std::size_t texts) {
  ranges_.reserve(texts);
  types_.reserve(texts);
}

// An empty text can lie anywhere; here it lies where the one before it ends.
void EntryTexts::addWord(TextView word, char16_t wordType) {
  TextRange range{ranges_.empty() ? 0 : ranges_.back().end(), 0};
  if (!word.empty()) {
    range.begin = static_cast<std::uint32_t>(word.data() - lines_->characters().data());
    range.length = static_cast<std::uint32_t>(word.size());
  }
  ranges_.push_back(range);
  types_.push_back(wordType);
}

// The texts of a usual glossary take less than to begin a thread, and the memory for letters can
// wait for a search.
void EntryTexts::endAdding() {
  constexpr std::size_t kMany = 1U << 23U;  // characters, which take some milliseconds
  if (lines_->characters().size() >= kMany) {
    folded_ = fold(std::launch::async | std::launch::deferred);
  }
}

const FoldedTexts& EntryTexts::folded() const {
  if (!folded_.valid()) folded_ = fold(std::launch::deferred);
  return folded_.get();
}

std::shared_future<FoldedTexts> EntryTexts::fold(std::launch policy) const {
  return std::async(policy,
                    [this] { return FoldedTexts(*collation_, lines_->characters(), ranges_); });
}

}  // namespace termvik
