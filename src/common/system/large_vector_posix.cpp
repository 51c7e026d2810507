// SPDX-License-Identifier: MIT
#include <sys/mman.h>

#include "common/system/large_vector.h"

namespace termvik {

void preferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t bytes) {
#ifdef MADV_HUGEPAGE  // Linux; a refusal is no loss but time
  madvise(memory, bytes, MADV_HUGEPAGE);
#endif
}

}  // namespace termvik
