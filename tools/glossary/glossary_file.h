// SPDX-License-Identifier: MIT
// The program's own format.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "common/collation/collation.h"
#include "files_in_out.h"
#include "glossary_lines.h"
#include "messages.h"
#include "words.h"

namespace termvik::tool {

// Adds the entries that the program would show of a glossary with these lines. What it would not
// show is told. Gives the first line when it may stand at the beginning of another glossary.
std::optional<Text> readGlossary(GlossaryLines glossaryLines, std::uint16_t input,
                                 const Collation& collation, WordList& list, Messages& messages);

// A line that is no word line, separator or comment head may be taken over from a glossary; one
// that is in Windows-1252 as well may be given as a title.
bool isFirstLine(const Collation& collation, TextView line);
bool isTitle(const Collation& collation, TextView title);

// The name of a file as the first line of a glossary.
Text titleOfFile(const Collation& collation, TextView fileName);

// The first line of a glossary, and the line of an input that it comes from where it does.
struct Title {
  Text text;
  Place place;
};

// Brings the list into what the format can hold and tells what that changes. `lossy`: a character
// that Windows-1252 lacks becomes `?`; otherwise it is an error.
void mendForGlossary(WordList& list, Title& title, bool lossy, const Collation& collation,
                     Messages& messages);

void writeGlossary(const WordList& list, TextView title, Output& output);

}  // namespace termvik::tool
