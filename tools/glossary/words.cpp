// SPDX-License-Identifier: MIT
#include "words.h"

#include <algorithm>

namespace termvik::tool {

namespace {

constexpr bool endsLine(char16_t character) { return character == u'\n' || character == u'\r'; }

// How many characters the line end at the beginning of `text` has.
template <class View>
std::size_t lineEndLength(View text) {
  return text.size() > 1 && text[0] == '\r' && text[1] == '\n' ? 2 : 1;
}

template <class View>
bool takeLineOf(View& text, View& line) {
  if (text.empty()) return false;
  line = View(text.begin(), std::find_if(text.begin(), text.end(), endsLine));
  text.remove_prefix(line.size());
  if (!text.empty()) text.remove_prefix(lineEndLength(text));
  return true;
}

}  // namespace

// Most words are ASCII, for which the text library has much ado with each.
TextView WordList::keepUtf8(std::string_view utf8) {
  const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
  if (!std::all_of(utf8.begin(), utf8.end(), isAscii)) return keep(fromUtf8(utf8));
  ascii_.assign(utf8.begin(), utf8.end());
  return keep(ascii_);
}

bool takeLine(TextView& text, TextView& line) { return takeLineOf(text, line); }

bool takeLine(std::string_view& bytes, std::string_view& line) { return takeLineOf(bytes, line); }

std::vector<TextView> linesOf(TextView text) {
  std::vector<TextView> lines;
  const bool opensOneMore = text.empty() || endsLine(text.back());
  for (TextView line; takeLine(text, line);) lines.push_back(line);
  if (opensOneMore) lines.emplace_back();
  return lines;
}

Text inOneLine(TextView text, TextView others) {
  Text result;
  while (!text.empty()) {
    const bool ends = endsLine(text.front());
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

TextView commentText(const Entry& entry, Text& room) {
  if (entry.comment.empty()) return {};
  if (entry.comment.size() == 1) return entry.comment.front().text;
  std::vector<TextView> pieces;
  for (const CommentPiece& piece : entry.comment) pieces.push_back(piece.text);
  room = joined(pieces);
  return room;
}

}  // namespace termvik::tool
