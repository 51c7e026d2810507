// Windows-1252, the code page of the files on platforms that have no ANSI code page of their own.
#include <algorithm>

#include "common/codepage.h"
#include "common/windows_1252.h"

namespace termvik {

void decodeAnsi(std::string_view bytes, Text& out) {
  const std::size_t start = out.size();
  out.resize(start + bytes.size());
  std::transform(bytes.begin(), bytes.end(), out.begin() + static_cast<std::ptrdiff_t>(start),
                 [](char byte) { return windows1252::decode(static_cast<unsigned char>(byte)); });
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
