// SPDX-License-Identifier: MIT
// An input of any format as entries.
#pragma once

#include <optional>
#include <string>

#include "common/collation/collation.h"
#include "formats.h"
#include "messages.h"
#include "streams.h"
#include "words.h"

namespace termvik::tool {

// Adds the entries of a file to `list`. Gives the first line of a glossary where another can begin
// with it. Throws Failure for what cannot be read as that format.
std::optional<Text> readInput(std::uint16_t input, Format format, const ReadOptions& options,
                              const Collation& collation, Streams& streams, WordList& list,
                              Messages& messages);

}  // namespace termvik::tool
