// SPDX-License-Identifier: MIT
// Tables of words: a row an entry, a column a language.
#pragma once

#include "common/collation/collation.h"
#include "formats.h"
#include "messages.h"
#include "text_out.h"
#include "words.h"

namespace termvik::tool {

// Adds the rows of a table as entries, whose texts lie in `text`. Throws Failure for what is no
// such table.
void readTable(TextView text, std::uint16_t input, const ReadOptions& options, char16_t delimiter,
               const Collation& collation, WordList& list, Messages& messages);

void writeTable(const WordList& list, char16_t delimiter, TextView lineEnd, TextOutput& out);

// Several words in one cell are parted by `|`. Of the backslashes right before one each pair stands
// for a backslash, and an odd one left over makes the `|` part of the word.
std::vector<Text> wordsOfCell(TextView cell);
void appendWordToCell(Text& cell, TextView word);

}  // namespace termvik::tool
