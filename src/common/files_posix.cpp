// Files by name where paths are bytes.
#include "common/files.h"

namespace termvik {

Text pathText(const std::filesystem::path& path) { return fromUtf8(path.native()); }

File openToRead(const std::filesystem::path& fileName) {
  return File(std::fopen(fileName.c_str(), "rb"));
}

File openToWrite(const std::filesystem::path& fileName) {
  return File(std::fopen(fileName.c_str(), "wb"));
}

}  // namespace termvik
