// SPDX-License-Identifier: MIT
// What main and the tests need of the platform.
#pragma once

#include "streams.h"

namespace termvik::tool {

// The file that the descriptor 0, 1 or 2 was led to.
std::optional<FileId> openFileId(int descriptor);

}  // namespace termvik::tool
