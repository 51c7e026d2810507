// SPDX-License-Identifier: MIT
// The program's surroundings on POSIX systems.
#include <algorithm>
#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is POSIX, not C++
#include <sys/auxv.h>

#include "common/system/app.h"
#include "common/system/files.h"

namespace termvik {

namespace {

// The folder of the path by which the program was started: of a link to it, where it was one.
std::filesystem::path startFolder() {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the kernel hands out the path's address as a number
  const auto* path = reinterpret_cast<const char*>(getauxval(AT_EXECFN));
  std::error_code error;
  if (path == nullptr) return {};
  return std::filesystem::canonical(std::filesystem::absolute(path, error).parent_path(), error);
}

}  // namespace

std::filesystem::path programFolder(std::span<const TextView> glossaries) {
  std::filesystem::path start = startFolder();
  const auto liesThere = [&](TextView name) { return fileExists(fileIn(start, name)); };
  if (!start.empty() && std::any_of(glossaries.begin(), glossaries.end(), liesThere)) return start;
  std::error_code error;
  const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::filesystem::current_path(error) : executable.parent_path();
}

char16_t userDecimalSeparator() {
  const locale_t user = newlocale(LC_NUMERIC_MASK, "", nullptr);
  if (user == nullptr) return u'.';
  const Text radix = fromUtf8(nl_langinfo_l(RADIXCHAR, user));
  freelocale(user);
  return radix.size() == 1 ? radix.front() : u'.';
}

}  // namespace termvik
