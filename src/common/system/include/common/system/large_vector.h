// SPDX-License-Identifier: MIT
// Vectors of many megabytes.
//
// The system gives memory page by page, and to be given a page takes longer than to fill it: large
// pages spare a third of a start with very many entries (bench/start).
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace termvik {

// Asks the system to give the memory, which has not been used yet, in large pages. Nothing where it
// has none.
void preferLargePages(void* memory, std::size_t bytes);

template <class T>
class LargeAllocator {
 public:
  using value_type = T;

  LargeAllocator() = default;
  template <class U>
  explicit(false) LargeAllocator(const LargeAllocator<U>&) {}

  T* allocate(std::size_t count) {
    if (!isLarge(count)) return std::allocator<T>().allocate(count);
    void* const memory = ::operator new (count * sizeof(T), std::align_val_t{kLargePage});
    preferLargePages(memory, count * sizeof(T));
    return static_cast<T*>(memory);
  }
  void deallocate(T* memory, std::size_t count) {
    if (!isLarge(count)) return std::allocator<T>().deallocate(memory, count);
    ::operator delete (memory, std::align_val_t{kLargePage});
  }

  // An element without a value is left as the memory is: what is filled at once is written once.
  template <class U>
  void construct(U* place) {
    ::new (static_cast<void*>(place)) U;
  }
  template <class U, class... Arguments>
  void construct(U* place, Arguments&&... arguments) {
    ::new (static_cast<void*>(place)) U(std::forward<Arguments>(arguments)...);
  }

  bool operator==(const LargeAllocator&) const = default;

 private:
  static constexpr std::size_t kLargePage = std::size_t{1} << 21U;

  static bool isLarge(std::size_t count) { return count >= kLargePage / sizeof(T); }
};

template <class T>
using LargeVector = std::vector<T, LargeAllocator<T>>;

}  // namespace termvik
