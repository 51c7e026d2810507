// Files by name where paths are UTF-16.
#include "common/files.h"
#include "common/wide_win.h"

namespace termvik {

Text pathText(const std::filesystem::path& path) { return fromWide(path.native()); }

File openToRead(const std::filesystem::path& fileName) {
  return File(_wfopen(fileName.c_str(), L"rb"));
}

File openToWrite(const std::filesystem::path& fileName) {
  return File(_wfopen(fileName.c_str(), L"wb"));
}

}  // namespace termvik
