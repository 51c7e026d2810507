// SPDX-License-Identifier: MIT
#include "folded_bytes.h"

#include <algorithm>
#include <cstring>

#include <unicode/uchar.h>

#include "common/system/codepage.h"

namespace termvik::bench {

FoldedBytes::FoldedBytes(defWords& store) {
  for (std::int32_t i = store.gGraphFirst; i <= store.gToolsLast; ++i) {
    const clsWEntry& entry = store.gEntries(i);
    for (std::int32_t word = 1; word <= entry.entryWordCount(); ++word) {
      bytes_.append(fold(entry.entryWord(word))).push_back('\0');
    }
    bytes_.append(fold(entry.entryComment())).push_back('\0');
  }
}

std::string FoldedBytes::fold(TextView text) {
  Text lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char16_t character) {
    return static_cast<char16_t>(u_tolower(static_cast<UChar32>(character)));
  });
  return encodeAnsi(lower);
}

std::size_t FoldedBytes::countByLibrary(std::string_view term) const {
  const char* at = bytes_.data();
  const char* const end = at + bytes_.size();
  for (std::size_t count = 0;; ++count) {
    const void* hit = memmem(at, static_cast<std::size_t>(end - at), term.data(), term.size());
    if (hit == nullptr) return count;
    at = static_cast<const char*>(hit) + term.size();
  }
}

std::size_t FoldedBytes::countByFirstByte(std::string_view term) const {
  std::size_t count = 0;
  for (std::size_t hit = bytes_.find(term); hit != std::string::npos;
       hit = bytes_.find(term, hit + term.size())) {
    ++count;
  }
  return count;
}

}  // namespace termvik::bench
