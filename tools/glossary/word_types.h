// SPDX-License-Identifier: MIT
// Word types as the program tells them apart.
#pragma once

#include "common/collation/collation.h"
#include "words.h"

namespace termvik::tool {

// The language that the program takes `wordType` for, as its capital letter; any other word type is
// given back as it is.
inline char16_t languageOr(const Collation& collation, char16_t wordType) {
  if (isLanguage(wordType)) return wordType;
  for (const char16_t language : kLanguages) {
    if (collation.equal({&wordType, 1}, {&language, 1})) return language;
  }
  return wordType;
}

}  // namespace termvik::tool
