// SPDX-License-Identifier: MIT
// Files by name where paths are UTF-16.
#include "common/system/files.h"
#include "common/system/wide_win.h"
#include "system_file.h"

namespace termvik {

Text pathText(const std::filesystem::path& path) { return fromWide(path.native()); }

SystemFile openSystemFile(const std::filesystem::path& fileName, Purpose purpose) {
  return SystemFile(_wfopen(fileName.c_str(), purpose == Purpose::Read ? L"rb" : L"wb"));
}

}  // namespace termvik
