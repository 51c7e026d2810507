// SPDX-License-Identifier: MIT
// The 8-bit code page of the program's files: the system's ANSI code page, Windows-1252 where the
// platform has none.
#pragma once

#include <string>
#include <string_view>

#include "common/system/text.h"

namespace termvik {

// Writes `bytes` to `out` as characters and gives their number, which is never above that of the
// bytes. Every byte gives a character: the five bytes that Windows-1252 leaves undefined (81 8D 8F
// 90 9D) become U+0081 and so on. Only where the system's page is one of the double-byte pages of
// East Asia can two bytes be one.
std::size_t decodeAnsi(std::string_view bytes, char16_t* out);
inline Text decodeAnsi(std::string_view bytes) {
  Text text(bytes.size(), u'\0');
  text.resize(decodeAnsi(bytes, text.data()));
  return text;
}

// `text` as bytes of the code page. A character (one UTF-16 element) that the code page lacks
// becomes '?'.
std::string encodeAnsi(TextView text);

// All characters that a file can hold in one byte: the images of the bytes 00 to FF, in that order.
Text ansiCharacters();

}  // namespace termvik
