// SPDX-License-Identifier: MIT
// `check`: what the program will not show of a glossary file, and what else is odd about it.
#pragma once

#include <string>
#include <vector>

#include "common/collation/collation.h"
#include "messages.h"
#include "streams.h"

namespace termvik::tool {

struct CheckOptions {
  bool doublets = false;
  bool missing = false;
};

// Prints the findings of each file and counts them in `messages`. True when every file could be
// read.
bool check(const std::vector<std::string>& files, const CheckOptions& options,
           const Collation& collation, Streams& streams, Messages& messages);

}  // namespace termvik::tool
