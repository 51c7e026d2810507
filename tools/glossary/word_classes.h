// SPDX-License-Identifier: MIT
// Which of many words are the same word.
#pragma once

#include <cstdint>
#include <vector>

#include "common/collation/collation.h"
#include "common/system/text.h"

namespace termvik::tool {

// A number for each word: words have the same one when the program takes them for equal. As the
// program finds doublets: equal words stand together in a list in order.
std::vector<std::uint32_t> classesOf(const std::vector<TextView>& words,
                                     const Collation& collation);

}  // namespace termvik::tool
