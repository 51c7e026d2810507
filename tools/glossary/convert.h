// SPDX-License-Identifier: MIT
// `convert`, `merge` and `stats`: inputs in, one list of entries, a result out.
#pragma once

#include "arguments.h"
#include "common/collation/collation.h"
#include "messages.h"
#include "streams.h"

namespace termvik::tool {

// Writes the entries of all inputs into the output. False when something that is told as an error
// keeps them from it: then nothing is written. Throws Failure.
bool convert(const Options& options, const Collation& collation, Streams& streams,
             Messages& messages);

// Prints the tables of all inputs. True when every one could be read.
bool stats(const Options& options, const Collation& collation, Streams& streams,
           Messages& messages);

}  // namespace termvik::tool
