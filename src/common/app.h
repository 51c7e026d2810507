// What the program knows of itself.
#pragma once

#include <cstdint>
#include <filesystem>

#include "common/text.h"

namespace termvik {

inline constexpr TextView kProgramName = u"Termvik";

struct App {
  std::filesystem::path Path;  // the folder that holds the program and its files

  // The version, from the one place in the build that states it.
  std::int16_t Major = TERMVIK_VERSION_MAJOR;
  std::int16_t Minor = TERMVIK_VERSION_MINOR;
  std::int16_t Revision = TERMVIK_VERSION_REVISION;

  char16_t decimalSeparator = u'.';  // of the user's locale
};

// The folder of the running executable, links resolved.
std::filesystem::path programFolder();

char16_t userDecimalSeparator();

}  // namespace termvik
