// SPDX-License-Identifier: MIT
// Files and arguments where paths are bytes.
#include <sys/stat.h>

#include "platform.h"
#include "streams.h"

namespace termvik::tool {

namespace {

std::optional<FileId> idOf(bool known, const struct stat& status) {
  if (!known || !S_ISREG(status.st_mode)) return std::nullopt;
  return FileId(status.st_dev, status.st_ino);
}

}  // namespace

std::optional<FileId> fileId(const std::filesystem::path& path) {
  struct stat status {};
  return idOf(stat(path.c_str(), &status) == 0, status);
}

std::optional<FileId> openFileId(int descriptor) {
  struct stat status {};
  return idOf(fstat(descriptor, &status) == 0, status);
}

std::filesystem::path pathOf(const std::string& argument) { return argument; }

std::string argumentOf(const std::filesystem::path& path) { return path.native(); }

}  // namespace termvik::tool
