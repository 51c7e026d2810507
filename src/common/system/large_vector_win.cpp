// SPDX-License-Identifier: MIT
#include "common/system/large_vector.h"

namespace termvik {

// Windows gives large pages only to those who may lock memory.
void preferLargePages(void*, std::size_t) {}

}  // namespace termvik
