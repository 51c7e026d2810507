// SPDX-License-Identifier: MIT
#include "omegat.h"

#include <algorithm>
#include <array>
#include <vector>

namespace termvik::tool {

namespace {

constexpr std::size_t kCells = 3;

struct OmegaTRow {
  std::array<TextView, kCells> cells;  // source, target, comment
  bool moreCells = false;
};

OmegaTRow cut(TextView line) {
  OmegaTRow row;
  for (TextView& cell : row.cells) {
    const std::size_t end = std::min(line.find(u'\t'), line.size());
    cell = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  row.moreCells = !line.empty();
  return row;
}

TextView commentOf(const Entry& entry) {
  return entry.comment.empty() ? TextView() : entry.comment.front().text;
}

// A cell as it can be written; what it cannot hold becomes a blank, with a warning.
Text cellOf(TextView text, Place place, Messages& messages) {
  Text cell = inOneLine(text, u"\t");
  if (cell != text) {
    messages.tell(Severity::Warning, place,
                  "tabs and line ends in " + inQuotes(text) + " become blanks");
  }
  return cell;
}

std::vector<Text> cellsOf(const Entry& entry, char16_t type, Messages& messages) {
  std::vector<Text> cells;
  for (const Word& word : entry.words) {
    if (word.type == type) cells.push_back(cellOf(word.text, word.place, messages));
  }
  return cells;
}

}  // namespace

void readOmegaT(TextView text, std::uint16_t input, const ReadOptions& options, WordList& list,
                Messages& messages) {
  const std::size_t firstEntry = list.entries.size();
  TextView rest = text;
  Place place{1, input};
  for (TextView line; takeLine(rest, line); ++place.line) {
    messages.progress("reading", text.size() - rest.size(), text.size());
    if (line.find_first_not_of(u" \t") == TextView::npos) continue;
    const OmegaTRow row = cut(line);
    const TextView source = trim(row.cells[0]);
    const TextView target = trim(row.cells[1]);
    const TextView comment = trim(row.cells[2]).empty() ? TextView() : row.cells[2];
    if (source.empty() || target.empty()) {
      messages.tell(Severity::Warning, place,
                    "the row lacks its source or target; it is passed over");
      continue;
    }
    if (row.moreCells) {
      messages.tell(Severity::Warning, place, "cells after the third one are passed over");
    }
    // A row with the same source and comment as the one before is one more target of it.
    if (list.entries.size() == firstEntry || commentOf(list.entries.back()) != comment ||
        list.entries.back().words.front().text != source) {
      Entry& entry = list.entries.emplace_back();
      entry.place = place;
      entry.words.push_back({source, place, options.source});
      if (!comment.empty()) entry.comment.push_back({comment, place});
    }
    auto& words = list.entries.back().words;
    const bool again = words.size() > 1 && words.back().text == target;
    if (!again) words.push_back({target, place, options.target});
  }
}

void writeOmegaT(const WordList& list, const ReadOptions& options, TextOutput& out,
                 Messages& messages) {
  std::size_t leftOut = 0;
  for (const Entry& entry : list.entries) {
    if (!hasWord(entry, options.source) || !hasWord(entry, options.target)) {
      ++leftOut;
      continue;
    }
    const std::vector<Text> sources = cellsOf(entry, options.source, messages);
    const std::vector<Text> targets = cellsOf(entry, options.target, messages);
    Text room;
    const Text comment = entry.comment.empty() ? Text()
                                               : cellOf(commentText(entry, room),
                                                        entry.comment.front().place, messages);
    for (const Text& source : sources) {
      for (const Text& target : targets) {
        out << source << u"\t" << target;
        if (!comment.empty()) out << u"\t" << comment;
        out << u"\n";
      }
    }
  }
  out.flush();
  if (leftOut == 0) return;
  messages.tell(Severity::Note, counted(leftOut, "entry lacks ", "entries lack ") +
                                    toUtf8({&options.source, 1}) + " or " +
                                    toUtf8({&options.target, 1}) + "; not written");
}

}  // namespace termvik::tool
