// SPDX-License-Identifier: MIT
#include "cells.h"

#include <algorithm>
#include <utility>

#include "messages.h"

namespace termvik::tool {

namespace {

constexpr char16_t kQuote = u'"';

bool isLineEnd(char16_t character) { return character == u'\r' || character == u'\n'; }

std::uint32_t countLineEnds(TextView text) {
  std::uint32_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool insidePair = text[i] == u'\n' && i > 0 && text[i - 1] == u'\r';
    if (isLineEnd(text[i]) && !insidePair) ++count;
  }
  return count;
}

}  // namespace

CellReader::CellReader(TextView text, char16_t delimiter, std::string name)
    : rest_(text), delimiter_(delimiter), name_(std::move(name)) {}

bool CellReader::next(Row& row) {
  if (rest_.empty()) return false;
  row.cells.clear();
  row.line = line_;
  row.strayText = false;
  unquoted_.clear();
  for (;;) {
    row.cells.push_back(takeCell(row.strayText));
    if (rest_.empty()) return true;
    const char16_t behind = rest_.front();
    rest_.remove_prefix(1);
    if (behind == delimiter_) continue;
    if (behind == u'\r' && rest_.starts_with(u'\n')) rest_.remove_prefix(1);
    ++line_;
    return true;
  }
}

Cell CellReader::takeCell(bool& stray) {
  if (rest_.starts_with(kQuote)) return takeQuoted(stray);
  const TextView plain = rest_.substr(0, plainLength());
  rest_.remove_prefix(plain.size());
  return {plain, line_};
}

// Up to the delimiter or the end of the line.
std::size_t CellReader::plainLength() const {
  const auto ends = [this](char16_t c) { return c == delimiter_ || isLineEnd(c); };
  return static_cast<std::size_t>(std::find_if(rest_.begin(), rest_.end(), ends) - rest_.begin());
}

Cell CellReader::takeQuoted(bool& stray) {
  const TextView whole = rest_.substr(1);
  std::size_t end = whole.find(kQuote);
  bool doubled = false;
  while (end != TextView::npos && whole.substr(end + 1).starts_with(kQuote)) {
    doubled = true;
    end = whole.find(kQuote, end + 2);
  }
  if (end == TextView::npos) {
    throw Failure(placeText(name_, line_) + "error: a cell begins with a quote and never ends");
  }
  const std::uint32_t line = line_;
  TextView cell = whole.substr(0, end);
  line_ += countLineEnds(cell);
  rest_ = whole.substr(end + 1);
  const std::size_t strayLength = plainLength();
  if (!doubled && strayLength == 0) return {cell, line};
  Text& text = unquoted_.emplace_back();
  for (; !cell.empty(); cell.remove_prefix(1)) {
    text += cell.front();
    if (cell.front() == kQuote) cell.remove_prefix(1);
  }
  text.append(rest_.substr(0, strayLength));
  rest_.remove_prefix(strayLength);
  stray = stray || strayLength > 0;
  return {text, line, false};
}

char16_t delimiterOf(TextView text) {
  std::ptrdiff_t more = 0;  // semicolons than commas
  bool quoted = false;
  for (const char16_t character : text) {
    if (character == kQuote) quoted = !quoted;
    if (quoted) continue;
    if (isLineEnd(character)) break;
    if (character == u';') ++more;
    if (character == u',') --more;
  }
  return more > 0 ? u';' : u',';
}

void appendCell(Text& row, TextView cell, char16_t delimiter) {
  const auto needsQuotes = [delimiter](char16_t c) {
    return static_cast<int>(c == delimiter) | static_cast<int>(c == kQuote) |
           static_cast<int>(c == u'\r') | static_cast<int>(c == u'\n');
  };
  int anyNeeds = 0;  // to the end whatever is found: the compiler looks at many characters at once
  for (const char16_t character : cell) anyNeeds |= needsQuotes(character);
  if (anyNeeds == 0) {
    row.append(cell);
    return;
  }
  row += kQuote;
  for (const char16_t character : cell) {
    row += character;
    if (character == kQuote) row += kQuote;
  }
  row += kQuote;
}

}  // namespace termvik::tool
