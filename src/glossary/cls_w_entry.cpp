#include "glossary/cls_w_entry.h"

namespace termvik {

namespace {

// The characters of `text` from column `column` (1-based) on.
TextView fromColumn(TextView text, std::size_t column) {
  return column > text.size() ? TextView() : text.substr(column - 1);
}

}  // namespace

bool clsWEntry::decodeEntry(const LineTable& arr, std::int32_t& nextLine) {
  Range range{nextLine, nextLine};
  if (!findRange(arr, range)) return false;
  store(arr, range);
  nextLine = range.last + 1;
  return true;
}

// Walks from range.first to the end of the entry. Blocks in which nothing counts are stepped over.
bool clsWEntry::findRange(const LineTable& arr, Range& range) {
  bool anyCounted = false;
  bool inComment = false;
  for (std::int32_t i = range.first; i <= arr.upperBound(); ++i) {
    const LineKind kind = arr.kind(i);
    if (kind == LineKind::Separator) {
      if (anyCounted) {
        range.last = i;
        return true;
      }
      range.first = i + 1;
      inComment = false;  // else the comment of a wordless block would swallow the rest of the file
      continue;
    }
    range.last = i;
    if (kind == LineKind::CommentHead) {
      inComment = true;
    } else if (!inComment && kind != LineKind::Empty) {
      anyCounted = true;
    }
  }
  return anyCounted;
}

void clsWEntry::store(const LineTable& arr, const Range& range) {
  firstText_ = static_cast<std::uint32_t>(texts_->size());
  bool inComment = false;
  TextView comment;
  Text joined;  // the lines of a comment that has several
  char16_t wordType = u'\0';
  bool hasWordType = false;
  for (std::int32_t i = range.first; i <= range.last; ++i) {
    const TextView line = arr[i];
    const LineKind kind = arr.kind(i);
    if (kind == LineKind::Separator) continue;
    if (kind == LineKind::CommentHead) {
      inComment = true;
      joined.clear();
      comment = trim(fromColumn(line, 3));
    } else if (inComment) {
      if (collation().isEmpty(comment)) {
        comment = line;
      } else {
        if (joined.empty()) joined = comment;
        comment = joined.append(kLineEnd).append(line);
      }
    } else if (kind == LineKind::Word) {
      wordType = line.front();
      hasWordType = true;
      texts_->addWord(fromColumn(line, 4), wordType);
    } else if (hasWordType && kind != LineKind::Empty) {
      texts_->addWord(line, wordType);
    }
  }
  entryWordCount_ = static_cast<std::int32_t>(texts_->size() - firstText_);
  texts_->addComment(joined.empty() ? comment : texts_->keep(joined));
}

TextView clsWEntry::entryWord(std::int32_t index) const {
  return texts_->text(firstText_ + static_cast<std::size_t>(index) - 1);
}

TextView clsWEntry::entryType(std::int32_t index) const {
  return texts_->type(firstText_ + static_cast<std::size_t>(index) - 1);
}

TextView clsWEntry::entryComment() const {
  return texts_->text(firstText_ + static_cast<std::size_t>(entryWordCount_));
}

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

TextView clsWEntry::wordForCommentHit(TextView aWordType) const {
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
