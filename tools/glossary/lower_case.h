// SPDX-License-Identifier: MIT
// Names that are the same in capital letters: of encodings, file endings, languages.
#pragma once

#include <string>
#include <string_view>

namespace termvik::tool {

// Only the letters A to Z change.
inline std::string lowerCase(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
  }
  return lower;
}

}  // namespace termvik::tool
