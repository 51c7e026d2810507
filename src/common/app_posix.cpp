// The program's surroundings on POSIX systems.
#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is POSIX, not C++

#include "common/app.h"

namespace termvik {

std::filesystem::path programFolder() {
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
