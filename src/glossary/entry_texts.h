// SPDX-License-Identifier: MIT
// The texts of all entries of one glossary: for each entry its words in file order, then its
// comment. A text is a range of the lines' characters.
#pragma once

#include <cstddef>
#include <future>

#include "common/collation/folded_texts.h"
#include "common/system/text.h"
#include "glossary/line_table.h"

namespace termvik {

class EntryTexts {
 public:
  // `lines` must stay where they are as long as the texts do.
  EntryTexts(const Collation& collation, const LineTable& lines)
      : collation_(&collation), lines_(&lines) {}

  const Collation& collation() const { return *collation_; }

  void clear();
  void reserve(std::size_t texts);

  // Texts count from 0, in the order in which they were added, which is that of their places.
  std::size_t size() const { return ranges_.size(); }
  void addWord(TextView word, char16_t wordType);
  void addComment(TextView comment) { addWord(comment, u'\0'); }

  TextView text(std::size_t index) const {
    return lines_->characters().substr(ranges_[index].begin, ranges_[index].length);
  }
  TextView type(std::size_t index) const { return {&types_[index], 1}; }  // of a word

  // All texts are there. Where they are many, a thread begins to fold them.
  void endAdding();

  // The texts as full search wants them; made when they are first asked for, if not yet.
  const FoldedTexts& folded() const;

 private:
  std::shared_future<FoldedTexts> fold(std::launch policy) const;

  const Collation* collation_;
  const LineTable* lines_;
  LargeVector<TextRange> ranges_;
  LargeVector<char16_t> types_;
  mutable std::shared_future<FoldedTexts> folded_;  // to let it go waits for its thread
};

}  // namespace termvik
