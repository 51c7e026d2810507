// SPDX-License-Identifier: MIT
#include "entry_texts.h"

namespace termvik {

void EntryTexts::clear() {
  ranges_ = LargeVector<TextRange>();
  types_ = LargeVector<char16_t>();
  folded_.reset();
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

const FoldedTexts& EntryTexts::folded() const {
  if (!folded_) folded_.emplace(*collation_, lines_->characters(), ranges_);
  return *folded_;
}

}  // namespace termvik
