// SPDX-License-Identifier: MIT
// UTF-8 conversion where ICU is the platform's text library.
#include <unicode/ustring.h>

#include "common/system/text.h"

namespace termvik {

namespace {
constexpr UChar32 kReplacement = 0xFFFD;
}

Text fromUtf8(std::string_view utf8) {
  Text text(utf8.size(), u'\0');  // never more UTF-16 elements than UTF-8 bytes
  int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF8WithSub(text.data(), static_cast<int32_t>(text.size()), &length, utf8.data(),
                       static_cast<int32_t>(utf8.size()), kReplacement, nullptr, &error);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::string toUtf8(TextView text) {
  std::string utf8(text.size() * 3, '\0');  // three bytes at the most for one UTF-16 element
  int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strToUTF8WithSub(utf8.data(), static_cast<int32_t>(utf8.size()), &length, text.data(),
                     static_cast<int32_t>(text.size()), kReplacement, nullptr, &error);
  utf8.resize(static_cast<std::size_t>(length));
  return utf8;
}

bool isUtf8(std::string_view bytes) {
  int32_t length = 0;  // of the text, for which there is no room: it is only measured
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, &length, bytes.data(), static_cast<int32_t>(bytes.size()), &error);
  return U_SUCCESS(error) || error == U_BUFFER_OVERFLOW_ERROR;
}

}  // namespace termvik
