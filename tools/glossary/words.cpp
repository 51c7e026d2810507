#include "words.h"

#include <algorithm>

namespace termvik::tool {

namespace {

constexpr TextView kLineEnds = u"\r\n";

// How many characters the line end at the beginning of `text` has.
std::size_t lineEndLength(TextView text) { return text.starts_with(kLineEnd) ? 2 : 1; }

}  // namespace

bool takeLine(TextView& text, TextView& line) {
  if (text.empty()) return false;
  const std::size_t end = std::min(text.find_first_of(kLineEnds), text.size());
  line = text.substr(0, end);
  text.remove_prefix(end);
  if (!text.empty()) text.remove_prefix(lineEndLength(text));
  return true;
}

std::vector<TextView> linesOf(TextView text) {
  std::vector<TextView> lines;
  const bool opensOneMore = text.empty() || kLineEnds.find(text.back()) != TextView::npos;
  for (TextView line; takeLine(text, line);) lines.push_back(line);
  if (opensOneMore) lines.emplace_back();
  return lines;
}

Text inOneLine(TextView text, TextView others) {
  Text result;
  while (!text.empty()) {
    const bool ends = kLineEnds.find(text.front()) != TextView::npos;
    const bool isOther = others.find(text.front()) != TextView::npos;
    result += ends || isOther ? u' ' : text.front();
    text.remove_prefix(ends ? lineEndLength(text) : 1);
  }
  return result;
}

Text joined(const std::vector<TextView>& lines) {
  Text all;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) all += u'\n';
    all.append(lines[i]);
  }
  return all;
}

bool hasWord(const Entry& entry, char16_t type) {
  return std::any_of(entry.words.begin(), entry.words.end(),
                     [type](const Word& word) { return word.type == type; });
}

Text commentText(const Entry& entry) {
  std::vector<TextView> pieces;
  for (const CommentPiece& piece : entry.comment) pieces.push_back(piece.text);
  return joined(pieces);
}

}  // namespace termvik::tool
