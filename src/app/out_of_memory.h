// SPDX-License-Identifier: MIT
// For a main whose program runs out of memory where it cannot go on.
#pragma once

#include <exception>
#include <new>

namespace termvik {

// Whether that is what the program is about to be ended for.
inline bool isOutOfMemory() {
  try {
    if (const std::exception_ptr thrown = std::current_exception()) std::rethrow_exception(thrown);
  } catch (const std::bad_alloc&) {
    return true;
  } catch (...) {
    return false;
  }
  return false;
}

}  // namespace termvik
