// SPDX-License-Identifier: MIT
// What the windows say of the program's maker.
#pragma once

#include "common/system/text.h"

namespace termvik {

inline constexpr TextView kWebAddress = u"termvik.test";
inline constexpr TextView kWebAddressLine = u"Termvik on the web: termvik.test";
inline constexpr TextView kContactLine =
    u"Questions, corrections and new words are welcome:\r\nwrite to glossary@termvik.test";
inline constexpr TextView kMakerLine =
    u"Termvik is made by people who sort words for printers and toolmakers";

}  // namespace termvik
