#include "glossary/line_table.h"

#include "common/codepage.h"

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
  lines_.reserve(lines, bytes);
  kinds_.reserve(lines);
}

void LineTable::append(std::string_view bytes) {
  char16_t* const room = lines_.roomFor(bytes.size());
  const TextView line = trimEnd(TextView(room, decodeAnsi(bytes, room)));
  lines_.takeRoom(line.size());
  lines_.endText();
  kinds_.push_back(kindOf(line));
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
