// SPDX-License-Identifier: MIT
// The program's texts: UTF-16 strings in which a character is one element.
#pragma once

#include <string>
#include <string_view>

namespace termvik {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView kLineEnd = u"\r\n";

// `text` without the blanks (U+0020 only) at its end.
constexpr TextView trimEnd(TextView text) {
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
  return text;
}

// `text` without the blanks (U+0020 only) at both ends.
constexpr TextView trim(TextView text) {
  while (!text.empty() && text.front() == u' ') text.remove_prefix(1);
  return trimEnd(text);
}

// UTF-16 from and to UTF-8, for what leaves the program as UTF-8: paths on Linux, the replay tool.
// What is not well formed comes out as U+FFFD.
Text fromUtf8(std::string_view utf8);
std::string toUtf8(TextView text);

// `bytes` are well-formed UTF-8.
bool isUtf8(std::string_view bytes);

}  // namespace termvik
