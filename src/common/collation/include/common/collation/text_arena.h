// SPDX-License-Identifier: MIT
// Texts and keys that stay where they are until all of them go.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace termvik {

template <class Char>
class TextArena {
 public:
  // A copy of `text` with a 0 after it.
  const Char* add(std::basic_string_view<Char> text) {
    const std::size_t size = text.size() + 1;
    if (size > free_) {
      free_ = std::max(size, kChunk);
      chunks_.push_back(std::make_unique_for_overwrite<Char[]>(free_));
      next_ = chunks_.back().get();
    }
    Char* const copy = next_;
    *std::copy(text.begin(), text.end(), copy) = Char{};
    next_ += size;
    free_ -= size;
    return copy;
  }

 private:
  static constexpr std::size_t kChunk = 1U << 18U;
  std::vector<std::unique_ptr<Char[]>> chunks_;
  std::size_t free_ = 0;  // characters left in the last chunk
  Char* next_ = nullptr;
};

}  // namespace termvik
