// SPDX-License-Identifier: MIT
// The program's texts as the Windows API takes and gives them: both are UTF-16.
#pragma once

#include <string>
#include <string_view>

#include "common/system/text.h"

namespace termvik {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

inline const wchar_t* wide(const char16_t* text) { return reinterpret_cast<const wchar_t*>(text); }
inline wchar_t* wide(char16_t* text) { return reinterpret_cast<wchar_t*>(text); }

inline std::wstring wide(TextView text) { return {text.begin(), text.end()}; }
inline Text fromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

}  // namespace termvik
