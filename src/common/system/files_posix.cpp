// SPDX-License-Identifier: MIT
// Files by name where paths are bytes.
#include "common/system/files.h"
#include "system_file.h"

namespace termvik {

Text pathText(const std::filesystem::path& path) { return fromUtf8(path.native()); }

SystemFile openSystemFile(const std::filesystem::path& fileName, Purpose purpose) {
  return SystemFile(std::fopen(fileName.c_str(), purpose == Purpose::Read ? "rb" : "wb"));
}

}  // namespace termvik
