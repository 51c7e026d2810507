// SPDX-License-Identifier: MIT
// Memory that can be made to run out.
#pragma once

#include <cstddef>

namespace termvik::test {

// While one of these lives, one request for memory fails, or all that would use more than a budget.
class ShortMemory {
 public:
  // The request of that number fails, counted from 1 on; none for 0.
  static ShortMemory once(std::size_t number) { return {number, kNoLimit}; }

  // No more than so many bytes can be in use beyond those that are.
  static ShortMemory of(std::size_t bytes) { return {0, bytes}; }

  ~ShortMemory();
  ShortMemory(const ShortMemory&) = delete;
  ShortMemory& operator=(const ShortMemory&) = delete;

  // So far.
  static std::size_t requests();
  static bool hasFailed();

 private:
  static constexpr std::size_t kNoLimit = ~std::size_t{0};

  ShortMemory(std::size_t number, std::size_t bytes);
};

}  // namespace termvik::test
