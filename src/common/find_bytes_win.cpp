// The search of Boyer, Moore and Horspool: Windows has none of its own.
#include <algorithm>
#include <array>
#include <cstring>

#include "common/find_bytes.h"

namespace termvik {

std::size_t findBytes(BytesView bytes, BytesView wanted) {
  constexpr std::size_t kFarthest = 255;  // what a step can be, so that the table is small
  if (wanted.size() > bytes.size()) return BytesView::npos;
  const std::size_t last = wanted.size() - 1;
  std::array<std::uint8_t, 256> steps{};  // by the byte that lies over the last one wanted
  steps.fill(static_cast<std::uint8_t>(std::min(kFarthest, wanted.size())));
  for (std::size_t i = 0; i < last; ++i) {
    steps[wanted[i]] = static_cast<std::uint8_t>(std::min(kFarthest, last - i));
  }
  for (std::size_t at = last; at < bytes.size(); at += steps[bytes[at]]) {
    if (bytes[at] != wanted[last]) continue;
    if (std::memcmp(bytes.data() + at - last, wanted.data(), last) == 0) return at - last;
  }
  return BytesView::npos;
}

}  // namespace termvik
