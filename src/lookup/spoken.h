// SPDX-License-Identifier: MIT
// What the main window says to a person who does not see it. Each utterance is whole in itself, as
// it cuts off the one before.
#pragma once

#include <cstdint>

#include "common/system/text.h"

namespace termvik::spoken {

// What a row is called: its word, and "doublet" instead of the mark's hyphens.
Text rowName(TextView row);

Text lines(TextView article);

Text words(std::int32_t count);  // that the list holds
Text hits(std::int32_t count);   // of a search

inline constexpr TextView kNoMatch = u"no match";  // no row begins with the whole search text

Text chosen(TextView option);
Text ticked(TextView checkBox, bool on);

// Both, one after the other; either can be empty.
Text sentences(TextView first, TextView second);

}  // namespace termvik::spoken
