// SPDX-License-Identifier: MIT
// What happens to entries on their way into any format.
#pragma once

#include "messages.h"
#include "words.h"

namespace termvik::tool {

// Drops the entries that have no word, and tells of their comments.
void dropWordless(WordList& list, Messages& messages);

// Leaves out the words that are of no language, with one warning an entry.
void keepLanguages(WordList& list, Messages& messages);

}  // namespace termvik::tool
