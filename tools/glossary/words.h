// SPDX-License-Identifier: MIT
// What a file of any format holds: entries of words and a comment, each text with its place.
#pragma once

#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string_view>
#include <utility>
#include <vector>

#include "common/collation/text_arena.h"
#include "common/system/large_vector.h"
#include "common/system/text.h"

namespace termvik::tool {

// The word types that the program offers as languages, in the order in which they are written.
inline constexpr TextView kLanguages = u"SEDF";

constexpr bool isLanguage(char16_t wordType) { return kLanguages.find(wordType) != TextView::npos; }

// A line of one of the files that were named on the command line.
struct Place {
  std::uint32_t line = 0;   // from 1, as editors count
  std::uint16_t input = 0;  // from 0
};

struct Word {
  TextView text;
  Place place;
  char16_t type = u'\0';
};

// A piece of a comment: lines that stand one below the other in the file.
struct CommentPiece {
  TextView text;
  Place place;
};

struct Entry {
  Place place;
  std::pmr::vector<Word> words;
  std::pmr::vector<CommentPiece> comment;

  void clear() {
    words.clear();
    comment.clear();
  }
};

bool hasWord(const Entry& entry, char16_t type);

// The pieces of a comment as one text, joined by LF; it lies in `room` when there are several.
TextView commentText(const Entry& entry, Text& room);

using Entries = LargeVector<Entry>;

class WordList {
 private:
  // What the entries lie in goes after them. Nothing of it is taken back before.
  std::pmr::monotonic_buffer_resource memory_;
  TextArena<char16_t> texts_;
  Text ascii_;  // room for keepUtf8
  std::vector<std::shared_ptr<const void>> owners_;

 public:
  Entries entries;

  // Adds a copy of `entry`, which takes just the room that it needs.
  void add(const Entry& entry) {
    entries.push_back({entry.place, {entry.words, &memory_}, {entry.comment, &memory_}});
  }

  // A copy of `text` that stays as long as the list.
  TextView keep(TextView text) { return {texts_.add(text), text.size()}; }

  TextView keepUtf8(std::string_view utf8);

  // Texts of the entries may lie in `owner`, which stays as long as the list.
  void keepOwner(std::shared_ptr<const void> owner) { owners_.push_back(std::move(owner)); }
};

// Takes the next line off `text`: it ends at CR LF, LF or CR, which go as well. False when the text
// is used up. A line end that is the last thing opens no further line.
bool takeLine(TextView& text, TextView& line);
bool takeLine(std::string_view& bytes, std::string_view& line);

// All lines of a text. Here a line end that is the last thing does open one more, an empty one.
std::vector<TextView> linesOf(TextView text);

// Lines as one text, joined by LF.
Text joined(const std::vector<TextView>& lines);

// The text with each character that ends a line or that is in `others` as a blank, CR LF as one.
Text inOneLine(TextView text, TextView others = {});

}  // namespace termvik::tool
