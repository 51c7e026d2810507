// SPDX-License-Identifier: MIT
// UTF-8 conversion by Windows, which puts U+FFFD for what is not well formed.
#include <windows.h>

#include "common/system/text.h"
#include "common/system/wide_win.h"

namespace termvik {

Text fromUtf8(std::string_view utf8) {
  if (utf8.empty()) return {};    // Windows takes an empty text for a mistake
  Text text(utf8.size(), u'\0');  // never more UTF-16 elements than UTF-8 bytes
  const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()),
                                         wide(text.data()), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::string toUtf8(TextView text) {
  if (text.empty()) return {};
  std::string utf8(text.size() * 3, '\0');  // three bytes at the most for one UTF-16 element
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, wide(text.data()), static_cast<int>(text.size()), utf8.data(),
                          static_cast<int>(utf8.size()), nullptr, nullptr);
  utf8.resize(static_cast<std::size_t>(length));
  return utf8;
}

bool isUtf8(std::string_view bytes) {
  return bytes.empty() || MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(),
                                              static_cast<int>(bytes.size()), nullptr, 0) != 0;
}

}  // namespace termvik
