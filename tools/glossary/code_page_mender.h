// SPDX-License-Identifier: MIT
// What of a text Windows-1252 cannot hold.
#pragma once

#include "messages.h"
#include "words.h"

namespace termvik::tool {

// All characters are in the code page, and none of them ends a line.
bool isPlainInCodePage(TextView text);

// `text` with `?` for each character that Windows-1252 lacks. Each is told with its place: as a
// warning when it may become `?`, as an error otherwise.
Text inCodePage(TextView text, Place place, bool lossy, Messages& messages);

}  // namespace termvik::tool
