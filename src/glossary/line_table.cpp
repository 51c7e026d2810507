// SPDX-License-Identifier: MIT
#include "glossary/line_table.h"

#include "common/system/codepage.h"

namespace termvik {

namespace {

constexpr TextView kSeparatorMark = u"---";
constexpr TextView kCommentMark = u"C:";
constexpr TextView kTypeMark = u":";

bool mayBeSame(std::optional<Letter> a, std::optional<Letter> b) { return !a || !b || *a == *b; }

}  // namespace

LineTable::LineTable(const Collation& collation)
    : collation_(&collation),
      separatorLetter_(collation.firstLetter(kSeparatorMark)),
      commentLetter_(collation.firstLetter(kCommentMark)) {}

void LineTable::reserve(std::size_t lines, std::size_t bytes) {
  characters_.reserve(bytes + lines * kLineEnd.size());
  ends_.reserve(lines);
  kinds_.reserve(lines);
}

void LineTable::clear() {
  characters_ = LargeVector<char16_t>();
  ends_ = LargeVector<std::uint32_t>();
  kinds_ = LargeVector<LineKind>();
}

void LineTable::append(std::string_view bytes) {
  const std::size_t begin = characters_.size();
  characters_.resize(begin + bytes.size());
  characters_.resize(begin + decodeAnsi(bytes, characters_.data() + begin));
  endLine(begin);
}

void LineTable::appendDecoded(TextView line) {
  const std::size_t begin = characters_.size();
  characters_.insert(characters_.end(), line.begin(), line.end());
  endLine(begin);
}

// The characters of a line have been added.
void LineTable::endLine(std::size_t begin) {
  const TextView line = trimEnd(characters().substr(begin));
  kinds_.push_back(kindOf(line));
  characters_.resize(begin + line.size());
  ends_.push_back(static_cast<std::uint32_t>(characters_.size()));
  characters_.insert(characters_.end(), kLineEnd.begin(), kLineEnd.end());
}

TextView LineTable::operator[](std::int32_t line) const {
  const std::size_t index = indexOf(line);
  const std::size_t begin = index == 0 ? 0 : ends_[index - 1] + kLineEnd.size();
  return characters().substr(begin, ends_[index] - begin);
}

LineKind LineTable::kindOf(TextView line) const {
  const Collation& collation = *collation_;
  const auto first = collation.firstLetter(line);
  if (mayBeSame(first, separatorLetter_) &&
      collation.equal(line.substr(0, kSeparatorMark.size()), kSeparatorMark)) {
    return LineKind::Separator;
  }
  if (mayBeSame(first, commentLetter_) &&
      collation.equal(line.substr(0, kCommentMark.size()), kCommentMark)) {
    return LineKind::CommentHead;
  }
  if (line.size() > 1 && collation.equal(line.substr(1, 1), kTypeMark)) return LineKind::Word;
  return !first && collation.isEmpty(line) ? LineKind::Empty : LineKind::Other;
}

}  // namespace termvik
