// SPDX-License-Identifier: MIT
#include "glossary/cls_w_entry.h"

#include "entry_texts.h"
#include "glossary/entry_lines.h"

namespace termvik {

namespace {

// Puts the words of an entry into the texts, then its comment.
class Storing {
 public:
  explicit Storing(EntryTexts& texts) : texts_(texts), comment_(texts.collation()) {}

  void word(std::int32_t, TextView text, char16_t wordType) { texts_.addWord(text, wordType); }
  void comment(std::int32_t, TextView text, bool isHead) { comment_.add(text, isHead); }
  void passedOver(std::int32_t) {}

  void addComment() { texts_.addComment(comment_.text()); }

 private:
  EntryTexts& texts_;
  CommentLines comment_;
};

}  // namespace

bool clsWEntry::decodeEntry(const LineTable& arr, std::int32_t& nextLine) {
  LineRange range{nextLine, nextLine};
  if (!findEntry(arr, range)) return false;
  firstText_ = static_cast<std::uint32_t>(texts_->size());
  Storing storing(*texts_);
  visitEntry(arr, range, storing);
  entryWordCount_ = static_cast<std::int32_t>(texts_->size() - firstText_);
  storing.addComment();
  nextLine = range.last + 1;
  return true;
}

TextView clsWEntry::entryWord(std::int32_t index) const {
  return texts_->text(firstText_ + static_cast<std::size_t>(index) - 1);
}

TextView clsWEntry::entryType(std::int32_t index) const {
  return texts_->type(firstText_ + static_cast<std::size_t>(index) - 1);
}

TextView clsWEntry::entryComment() const { return texts_->text(commentText()); }

const Collation& clsWEntry::collation() const { return texts_->collation(); }

bool clsWEntry::isOfType(std::int32_t index, TextView aWordType) const {
  return collation().equal(entryType(index), aWordType);
}

bool clsWEntry::getGlossaryWord(TextView aWordType, bool& getFirst, TextView& word) {
  if (getFirst) {
    nextWordIndex_ = 1;
    getFirst = false;
  }
  if (nextWordIndex_ < 1) return false;
  for (std::int32_t i = nextWordIndex_; i <= entryWordCount_; ++i) {
    if (collation().isEmpty(entryWord(i)) || !isOfType(i, aWordType)) continue;
    word = entryWord(i);
    nextWordIndex_ = i + 1;
    return true;
  }
  return false;
}

TextView clsWEntry::wordForHit(std::size_t hit, TextView aWordType) const {
  if (hit != commentText()) return texts_->text(hit);
  for (std::int32_t i = 1; i <= entryWordCount_; ++i) {
    if (isOfType(i, aWordType)) return entryWord(i);
  }
  return entryWordCount_ > 0 ? entryWord(1) : TextView();
}

Text clsWEntry::getArticle(TextView aWordType) const {
  Text article;
  for (std::int32_t i = 1; i <= entryWordCount_; ++i) {
    if (!isOfType(i, aWordType)) continue;
    if (article.empty()) {
      article.append(aWordType).append(u": ");
    } else {
      article.append(u", ");
    }
    article.append(entryWord(i));
  }
  TextView previousType;
  for (std::int32_t i = 1; i <= entryWordCount_; ++i) {
    if (isOfType(i, aWordType)) continue;
    const TextView type = entryType(i);
    if (collation().equal(type, previousType)) {
      article.append(u", ");
    } else {
      article.append(kLineEnd).append(type).append(u": ");
    }
    previousType = type;
    article.append(entryWord(i));
  }
  return article.append(kLineEnd).append(kLineEnd).append(entryComment());
}

Text clsWEntry::articleForFile(TextView wordTypesDef, TextView key) const {
  Text block;
  if (!isLowestOfType(wordTypesDef.substr(0, 1), key)) return block;
  for (std::size_t i = 0; i < wordTypesDef.size(); ++i) {
    const TextView type = wordTypesDef.substr(i, 1);
    TextView lastWord;
    bool hasWord = false;
    while (nextWordOfType(type, lastWord)) {
      if (!hasWord) block.append(type).append(u": ");
      block.append(lastWord).append(kLineEnd);
      hasWord = true;
    }
  }
  if (!collation().isEmpty(entryComment())) {
    block.append(u"C: ").append(kLineEnd).append(entryComment()).append(kLineEnd);
  }
  return block;
}

// The lowest word of the type that is greater than `lastWord`; of words that compare equal the one
// stored first.
bool clsWEntry::nextWordOfType(TextView aWordType, TextView& lastWord) const {
  TextView best;
  for (std::int32_t i = 1; i <= entryWordCount_; ++i) {
    if (!isOfType(i, aWordType)) continue;
    const TextView word = entryWord(i);
    if (collation().textCompare(word, lastWord) <= 0) continue;
    if (collation().isEmpty(best) || collation().textCompare(word, best) < 0) best = word;
  }
  lastWord = best;
  return !collation().isEmpty(best);
}

bool clsWEntry::isLowestOfType(TextView aWordType, TextView key) const {
  for (std::int32_t i = 1; i <= entryWordCount_; ++i) {
    if (isOfType(i, aWordType) && collation().textCompare(key, entryWord(i)) > 0) return false;
  }
  return true;
}

}  // namespace termvik
