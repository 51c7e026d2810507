// SPDX-License-Identifier: MIT
// The tool behind the entry point that the platform asks for.
#pragma once

#include <string>
#include <vector>

#include "common/collation/collation.h"
#include "streams.h"

namespace termvik::tool {

// The program's exit status: 0 all is well, 1 an error or a warning was told, 2 no result.
int runTool(const std::vector<std::string>& arguments, Streams& streams);

// The same in an order of words that exists already.
int runTool(const std::vector<std::string>& arguments, const Collation& collation,
            Streams& streams);

}  // namespace termvik::tool
