// SPDX-License-Identifier: MIT
// What the bytes of a glossary file tell before any line is read.
#pragma once

#include <string_view>

#include "findings.h"

namespace termvik::tool {

// Findings about the encoding, line ends and control characters. True when the file is UTF-16, of
// which the lines tell nothing more.
bool inspectBytes(std::string_view bytes, Findings& findings);

}  // namespace termvik::tool
