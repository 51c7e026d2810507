// SPDX-License-Identifier: MIT
// Upper case for the names of parameters and windows, which are plain ASCII.
#pragma once

#include "common/system/text.h"

namespace termvik {

inline Text upperCase(TextView name) {
  Text upper(name);
  for (char16_t& character : upper) {
    if (character >= u'a' && character <= u'z') character = static_cast<char16_t>(character - 32);
  }
  return upper;
}

}  // namespace termvik
