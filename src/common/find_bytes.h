// The platform's fastest search for a few bytes in many.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace termvik {

using BytesView = std::basic_string_view<std::uint8_t>;

// Where `wanted` first stands in `bytes`, BytesView::npos when it does not. `wanted` is not empty.
std::size_t findBytes(BytesView bytes, BytesView wanted);

}  // namespace termvik
