// SPDX-License-Identifier: MIT
// TermBase eXchange: concepts with terms in languages.
#pragma once

#include <optional>

#include "files_in_out.h"
#include "messages.h"
#include "text_in.h"
#include "text_out.h"
#include "words.h"

namespace termvik::tool {

// Adds the concepts of TBX 2, TBX 3 or TBX-Min as entries. Throws Failure for what is none of them.
void readTbx(Input& file, std::uint16_t input, std::optional<Encoding> encoding, WordList& list,
             Messages& messages);

// Leaves out what XML cannot hold and tells it.
void mendForTbx(WordList& list, Messages& messages);

// Writes TBX-Basic, version 3, in its style dca.
void writeTbx(const WordList& list, TextOutput& out);

}  // namespace termvik::tool
