// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cells.h"
#include "columns.h"
#include "table.h"

namespace termvik::tool {

namespace {

class TableReader {
 public:
  TableReader(std::uint16_t input, const Collation& collation, WordList& list, Messages& messages)
      : input_(input), collation_(collation), list_(list), messages_(messages) {}

  void useColumns(const std::vector<Column>& columns) { columns_ = columns; }
  void useHeader(const Row& header);
  void add(const Row& row);

 private:
  void warn(std::uint32_t line, const std::string& text) {
    messages_.tell(Severity::Warning, {line, input_}, text);
  }
  void warnOfCellsBehind(const Row& row);
  void addWords(const Cell& cell, char16_t type);

  std::uint16_t input_;
  const Collation& collation_;
  WordList& list_;
  Messages& messages_;
  std::vector<Column> columns_;
  std::vector<bool> nameless_;  // columns whose content nobody has been told of yet
  Entry entry_;
};

void TableReader::useHeader(const Row& header) {
  for (const Cell& cell : header.cells) {
    columns_.push_back(columnNamed(collation_, cell.text).value_or(Column::None));
  }
  const std::string place = placeText(messages_.inputName(input_), header.line);
  if (!anyUsed(columns_)) {
    throw Failure(place + "error: no column has a name such as S, E, D, F or C; --columns tells " +
                  "what a table without names holds");
  }
  if (anyTwice(columns_)) throw Failure(place + "error: a column stands twice");
  nameless_.resize(columns_.size());
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (columns_[i] != Column::None) continue;
    const TextView name = trim(header.cells[i].text);
    nameless_[i] = name.empty();
    if (!name.empty()) {
      warn(header.cells[i].line, "the column " + inQuotes(name) + " is passed over");
    }
  }
}

// What is empty is no loss: spreadsheets write cells for all columns that were ever used.
void TableReader::warnOfCellsBehind(const Row& row) {
  const auto isFilled = [](const Cell& cell) { return !trim(cell.text).empty(); };
  for (std::size_t i = 0; i < std::min(nameless_.size(), row.cells.size()); ++i) {
    if (!nameless_[i] || !isFilled(row.cells[i])) continue;
    nameless_[i] = false;
    warn(row.cells[i].line, "column " + std::to_string(i + 1) + " has no name and is passed over");
  }
  if (row.cells.size() <= columns_.size()) return;
  const auto behind = row.cells.begin() + static_cast<std::ptrdiff_t>(columns_.size());
  const auto filled = std::find_if(behind, row.cells.end(), isFilled);
  if (filled != row.cells.end()) {
    warn(filled->line, "the row has more cells than there are columns; " + inQuotes(filled->text) +
                           " is passed over");
  }
}

void TableReader::addWords(const Cell& cell, char16_t type) {
  const auto add = [&](TextView word, bool lasts) {
    word = trim(word);
    if (word.empty()) return;
    entry_.words.push_back({lasts ? word : list_.keep(word), {cell.line, input_}, type});
  };
  TextView rest = cell.text;
  std::size_t end = rest.find(u'|');
  if (end != TextView::npos && rest.find(u'\\') != TextView::npos) {
    for (const Text& word : wordsOfCell(rest)) add(word, false);
    return;
  }
  for (; end != TextView::npos; end = rest.find(u'|')) {
    add(rest.substr(0, end), cell.lasts);
    rest.remove_prefix(end + 1);
  }
  add(rest, cell.lasts);
}

void TableReader::add(const Row& row) {
  if (row.strayText) warn(row.line, "text stands after a closing quote; it is taken as it is");
  entry_.clear();
  entry_.place = {row.line, input_};
  for (std::size_t i = 0; i < std::min(columns_.size(), row.cells.size()); ++i) {
    const Cell& cell = row.cells[i];
    if (columns_[i] == Column::None || cell.text.empty()) continue;
    if (columns_[i] == Column::Comment) {
      const TextView text = cell.lasts ? cell.text : list_.keep(cell.text);
      entry_.comment.push_back({text, {cell.line, input_}});
    } else {
      addWords(cell, letterOf(columns_[i]));
    }
  }
  warnOfCellsBehind(row);
  if (!entry_.words.empty()) {
    list_.add(entry_);
  } else if (!entry_.comment.empty() && !trim(entry_.comment.front().text).empty()) {
    warn(row.line, "the row has a comment and no word; it is passed over");
  }
}

}  // namespace

std::vector<Text> wordsOfCell(TextView cell) {
  std::vector<Text> words(1);
  std::size_t backslashes = 0;  // at the end of the last word so far
  for (const char16_t character : cell) {
    if (character == u'|') {
      words.back().resize(words.back().size() - (backslashes + 1) / 2);
      if (backslashes % 2 == 0) words.emplace_back();
    }
    if (character != u'|' || backslashes % 2 == 1) words.back() += character;
    backslashes = character == u'\\' ? backslashes + 1 : 0;
  }
  return words;
}

void readTable(TextView text, std::uint16_t input, const ReadOptions& options, char16_t delimiter,
               const Collation& collation, WordList& list, Messages& messages) {
  CellReader cells(text, delimiter, messages.inputName(input));
  TableReader reader(input, collation, list, messages);
  if (list.entries.empty()) {
    constexpr std::size_t kShort = 32;  // characters of a row; few are that short
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), u'\n'));
    list.entries.reserve(std::min(lines, text.size() / kShort));
  }
  Row row;
  if (!options.columns.empty()) {
    reader.useColumns(options.columns);
  } else {
    cells.next(row);
    reader.useHeader(row);
  }
  while (cells.next(row)) {
    reader.add(row);
    messages.progress("reading", text.size() - cells.rest(), text.size());
  }
}

}  // namespace termvik::tool
