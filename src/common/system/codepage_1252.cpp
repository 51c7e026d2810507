// SPDX-License-Identifier: MIT
// Windows-1252, the code page of the files on platforms that have no ANSI code page of their own.
#include <algorithm>

#include "common/system/codepage.h"
#include "common/system/windows_1252.h"

namespace termvik {

namespace {

char16_t decode(char byte) { return windows1252::decode(static_cast<unsigned char>(byte)); }

// Decodes `Count` bytes at once: nearly all of them are the code of their character.
template <std::size_t Count>
void decodePiece(const char* bytes, char16_t* out) {
  unsigned special = 0;
  for (std::size_t i = 0; i < Count; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    out[i] = byte;
    special |= windows1252::isSpecial(byte) ? 1U : 0U;
  }
  if (special != 0) std::transform(bytes, bytes + Count, out, decode);
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
    std::transform(bytes.begin(), bytes.end(), out, decode);
  }
  return bytes.size();
}

std::string encodeAnsi(TextView text) {
  std::string bytes(text.size(), '\0');
  std::transform(text.begin(), text.end(), bytes.begin(), windows1252::encode);
  return bytes;
}

Text ansiCharacters() {
  Text characters(256, u'\0');
  for (unsigned byte = 0; byte < 256; ++byte) {
    characters[byte] = windows1252::decode(static_cast<unsigned char>(byte));
  }
  return characters;
}

}  // namespace termvik
