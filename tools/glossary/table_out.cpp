// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cells.h"
#include "table.h"

namespace termvik::tool {

namespace {

constexpr TextView kColumns = u"SEDFC";

bool holds(const Entry& entry, char16_t column) {
  return column == letterOf(Column::Comment) ? !entry.comment.empty() : hasWord(entry, column);
}

// The columns that hold anything; all of them where none does, for the table to be one.
Text usedColumns(const WordList& list) {
  Text used;
  for (const char16_t column : kColumns) {
    if (std::any_of(list.entries.begin(), list.entries.end(),
                    [column](const Entry& entry) { return holds(entry, column); })) {
      used += column;
    }
  }
  return used.empty() ? Text(kColumns) : used;
}

// What stands in a cell; it lies in `room` where it does not lie in the entry as it is.
TextView cellOf(const Entry& entry, char16_t column, Text& room) {
  if (column == letterOf(Column::Comment)) return commentText(entry, room);
  const auto isOfIt = [column](const Word& word) { return word.type == column; };
  const auto first = std::find_if(entry.words.begin(), entry.words.end(), isOfIt);
  if (first == entry.words.end()) return {};
  const bool isOnly = std::none_of(first + 1, entry.words.end(), isOfIt);
  if (isOnly && first->text.find(u'|') == TextView::npos) return first->text;
  room.clear();
  for (const Word& word : entry.words) {
    if (isOfIt(word)) appendWordToCell(room, word.text);
  }
  return room;
}

}  // namespace

// Backslashes count only before a `|`: those of the word's own, and those at the end of the word
// before it.
void appendWordToCell(Text& cell, TextView word) {
  const auto doubleBackslashes = [&cell] {
    const std::size_t end = cell.find_last_not_of(u'\\');
    cell.append(cell.size() - (end == Text::npos ? 0 : end + 1), u'\\');
  };
  if (!cell.empty()) {
    doubleBackslashes();
    cell += u'|';
  }
  for (const char16_t character : word) {
    if (character == u'|') {
      doubleBackslashes();
      cell += u'\\';
    }
    cell += character;
  }
}

void writeTable(const WordList& list, char16_t delimiter, TextView lineEnd, TextOutput& out) {
  const Text columns = usedColumns(list);
  Text row;
  for (const char16_t column : columns) {
    if (!row.empty()) row += delimiter;
    row += column;
  }
  out << row.append(lineEnd);
  Text room;
  for (const Entry& entry : list.entries) {
    row.clear();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      if (i > 0) row += delimiter;
      appendCell(row, cellOf(entry, columns[i], room), delimiter);
    }
    out << row.append(lineEnd);
  }
  out.flush();
}

}  // namespace termvik::tool
