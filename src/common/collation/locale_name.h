// SPDX-License-Identifier: MIT
// Names of locales as the environment writes them.
#pragma once

#include <algorithm>
#include <string>

namespace termvik {

// The user's locale without its code page: `sv_SE` for `sv_SE.UTF-8`. Empty for the names that
// stand for no locale.
inline std::string localeWithoutCodePage(std::string name) {
  const std::size_t dot = std::min(name.find('.'), name.size());
  name.erase(dot, std::min(name.find('@', dot), name.size()) - dot);
  return name == "C" || name == "POSIX" ? "" : name;
}

}  // namespace termvik
