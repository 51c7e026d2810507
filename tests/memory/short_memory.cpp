// SPDX-License-Identifier: MIT
#include "short_memory.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

struct Shortage {
  bool isOn = false;
  std::size_t number = 0;
  std::size_t mostInUse = 0;
  std::size_t requests = 0;
  bool hasFailed = false;
};

Shortage shortage;
std::size_t inUse = 0;

#ifdef _WIN32
std::size_t sizeOf(void* memory) { return _msize(memory); }
#else
std::size_t sizeOf(void* memory) { return malloc_usable_size(memory); }
#endif

bool isRefused(std::size_t size) {
  if (!shortage.isOn) return false;
  const bool isTooMuch = size > shortage.mostInUse || inUse > shortage.mostInUse - size;
  if (++shortage.requests != shortage.number && !isTooMuch) return false;
  shortage.hasFailed = true;
  return true;
}

}  // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  void* const memory = isRefused(size) ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (memory != nullptr) inUse += sizeOf(memory);
  return memory;
}

void* operator new(std::size_t size) {
  void* const memory = operator new(size, std::nothrow);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept {
  if (memory == nullptr) return;
  inUse -= sizeOf(memory);
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace termvik::test {

ShortMemory::ShortMemory(std::size_t number, std::size_t bytes) {
  shortage = {
      .isOn = true, .number = number, .mostInUse = bytes == kNoLimit ? kNoLimit : inUse + bytes};
}

ShortMemory::~ShortMemory() { shortage.isOn = false; }

std::size_t ShortMemory::requests() { return shortage.requests; }

bool ShortMemory::hasFailed() { return shortage.hasFailed; }

}  // namespace termvik::test
