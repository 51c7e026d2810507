// SPDX-License-Identifier: MIT
// The code page Windows-1252.
#pragma once

#include <algorithm>
#include <array>

namespace termvik::windows1252 {

inline constexpr unsigned kFirstSpecial = 0x80;
inline constexpr unsigned kFirstLatin1 = 0xA0;

// The characters of the bytes 80 to 9F; all others have the code of their byte.
inline constexpr std::array<char16_t, kFirstLatin1 - kFirstSpecial> kSpecial = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool isSpecial(unsigned char byte) {
  return byte >= kFirstSpecial && byte < kFirstLatin1;
}

constexpr char16_t decode(unsigned char byte) {
  return isSpecial(byte) ? kSpecial[byte - kFirstSpecial] : byte;
}

// '?' for a character that the code page lacks.
constexpr char encode(char16_t character) {
  if (character < kFirstSpecial || (character >= kFirstLatin1 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto* const found = std::find(kSpecial.begin(), kSpecial.end(), character);
  if (found == kSpecial.end()) return '?';
  return static_cast<char>(kFirstSpecial + static_cast<unsigned>(found - kSpecial.begin()));
}

}  // namespace termvik::windows1252
