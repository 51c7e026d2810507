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

constexpr bool isSpecial(unsigned byte) { return byte >= kFirstSpecial && byte < kFirstLatin1; }

// By byte.
constexpr std::array<char16_t, 256> kCharacters = [] {
  std::array<char16_t, 256> characters{};
  for (unsigned byte = 0; byte < characters.size(); ++byte) {
    characters.at(byte) =
        isSpecial(byte) ? kSpecial.at(byte - kFirstSpecial) : static_cast<char16_t>(byte);
  }
  return characters;
}();

char encode(char16_t character) {
  if (character < kFirstSpecial || (character >= kFirstLatin1 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto* const found = std::find(kSpecial.begin(), kSpecial.end(), character);
  if (found == kSpecial.end()) return '?';
  return static_cast<char>(kFirstSpecial + static_cast<unsigned>(found - kSpecial.begin()));
}

}  // namespace

namespace {

// Decodes `Count` bytes at once: nearly all of them are the code of their character.
template <std::size_t Count>
void decodePiece(const char* bytes, char16_t* out) {
  unsigned special = 0;
  for (std::size_t i = 0; i < Count; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    out[i] = byte;
    special |= isSpecial(byte) ? 1U : 0U;
  }
  for (std::size_t i = 0; special != 0 && i < Count; ++i) {
    out[i] = kCharacters[static_cast<unsigned char>(bytes[i])];
  }
}

// Pieces of `Count` bytes; the last one reaches back over bytes that are decoded already.
template <std::size_t Count>
void decodePieces(std::string_view bytes, char16_t* out) {
  const std::size_t last = bytes.size() - Count;
  for (std::size_t i = 0; i < last; i += Count) decodePiece<Count>(&bytes[i], out + i);
  decodePiece<Count>(&bytes[last], out + last);
}

}  // namespace

// The lines of a glossary are short and many, so that the pieces count (bench/load).
std::size_t decodeAnsi(std::string_view bytes, char16_t* out) {
  if (bytes.size() >= 16) {
    decodePieces<16>(bytes, out);
  } else if (bytes.size() >= 8) {
    decodePieces<8>(bytes, out);
  } else {
    for (const char byte : bytes) *out++ = kCharacters[static_cast<unsigned char>(byte)];
  }
  return bytes.size();
}

std::string encodeAnsi(TextView text) {
  std::string bytes(text.size(), '\0');
  std::transform(text.begin(), text.end(), bytes.begin(), encode);
  return bytes;
}

Text ansiCharacters() { return {kCharacters.begin(), kCharacters.end()}; }

}  // namespace termvik
