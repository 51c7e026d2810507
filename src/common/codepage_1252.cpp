// Windows-1252, the code page of the files on platforms that have no ANSI code page of their own.
#include <algorithm>
#include <array>

#include "common/codepage.h"

namespace termvik {

namespace {

constexpr unsigned kFirstSpecial = 0x80;
constexpr unsigned kFirstLatin1 = 0xA0;

// The characters of the bytes 80 to 9F; all others have the code of their byte.
constexpr std::array<char16_t, kFirstLatin1 - kFirstSpecial> kSpecial = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t decode(unsigned char byte) {
  return byte >= kFirstSpecial && byte < kFirstLatin1 ? kSpecial[byte - kFirstSpecial] : byte;
}

char encode(char16_t character) {
  if (character < kFirstSpecial || (character >= kFirstLatin1 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto* const found = std::find(kSpecial.begin(), kSpecial.end(), character);
  if (found == kSpecial.end()) return '?';
  return static_cast<char>(kFirstSpecial + static_cast<unsigned>(found - kSpecial.begin()));
}

}  // namespace

void decodeAnsi(std::string_view bytes, Text& out) {
  const std::size_t start = out.size();
  out.resize(start + bytes.size());
  std::transform(bytes.begin(), bytes.end(), out.begin() + static_cast<std::ptrdiff_t>(start),
                 [](char byte) { return decode(static_cast<unsigned char>(byte)); });
}

std::string encodeAnsi(TextView text) {
  std::string bytes(text.size(), '\0');
  std::transform(text.begin(), text.end(), bytes.begin(), encode);
  return bytes;
}

Text ansiCharacters() {
  Text characters(256, u'\0');
  for (unsigned byte = 0; byte < 256; ++byte) {
    characters[byte] = decode(static_cast<unsigned char>(byte));
  }
  return characters;
}

}  // namespace termvik
