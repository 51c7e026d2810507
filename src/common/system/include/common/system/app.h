// SPDX-License-Identifier: MIT
// What the program knows of itself.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

#include "common/system/files.h"
#include "common/system/text.h"

namespace termvik {

inline constexpr TextView kProgramName = u"Termvik";

struct App {
  std::filesystem::path Path;  // the folder that holds the program and its files
  const Files* files = &disk();

  // The version, from the one place in the build that states it.
  std::int16_t Major = TERMVIK_VERSION_MAJOR;
  std::int16_t Minor = TERMVIK_VERSION_MINOR;
  std::int16_t Revision = TERMVIK_VERSION_REVISION;

  char16_t decimalSeparator = u'.';  // of the user's locale
};

// The folder that the program's files lie beside it in. On Windows it is that of the path by which
// the system loaded the program: linked folders and mapped drives stay in it, as the user knows
// them. On POSIX systems it is that of the running executable, links resolved; the folder of the
// path by which the program was started comes before it where one of `glossaries` lies there: a
// package starts the program for each user by a link in a folder of the user's own, and the
// executable stays with the system.
std::filesystem::path programFolder(std::span<const TextView> glossaries);

char16_t userDecimalSeparator();

}  // namespace termvik
