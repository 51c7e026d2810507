// The search for a few letters in very many: the inner loop of full search.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "common/letters.h"

namespace termvik {

using LettersView = std::basic_string_view<Letter>;

// Up to three of the wanted letters, as indices. The rarer they are, the faster the search.
using Probes = std::array<std::size_t, 3>;

// Where `wanted` first stands in `letters`, LettersView::npos when it does not. `wanted` is not
// empty.
std::size_t findLetters(LettersView letters, LettersView wanted, const Probes& probes);

}  // namespace termvik
