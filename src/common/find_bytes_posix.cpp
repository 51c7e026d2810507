#include <cstring>

#include "common/find_bytes.h"

namespace termvik {

std::size_t findBytes(BytesView bytes, BytesView wanted) {
  const void* found = memmem(bytes.data(), bytes.size(), wanted.data(), wanted.size());
  if (found == nullptr) return BytesView::npos;
  return static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - bytes.data());
}

}  // namespace termvik
