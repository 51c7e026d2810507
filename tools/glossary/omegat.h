// SPDX-License-Identifier: MIT
// A translation tool's glossary: source, target and comment, parted by tabs.
#pragma once

#include "formats.h"
#include "messages.h"
#include "text_out.h"
#include "words.h"

namespace termvik::tool {

// The texts of the entries lie in `text`.
void readOmegaT(TextView text, std::uint16_t input, const ReadOptions& options, WordList& list,
                Messages& messages);

// Writes a row for each pair of a source word and a target word, and tells what that leaves out.
void writeOmegaT(const WordList& list, const ReadOptions& options, TextOutput& out,
                 Messages& messages);

}  // namespace termvik::tool
