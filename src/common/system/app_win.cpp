// SPDX-License-Identifier: MIT
// The program's surroundings on Windows.
#include <array>
#include <string>
#include <windows.h>

#include "common/system/app.h"

namespace termvik {

namespace {

constexpr DWORD kFirstSize = 512;  // characters; most paths are shorter

// The path by which the system loaded the program. It returns as many characters as it has room for
// when there are more.
std::wstring executablePath() {
  std::wstring path(kFirstSize, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) return path.substr(0, length);
    path.resize(2 * path.size());
  }
}

// The form of the path that a user knows, `C:\...` or `\\server\...`.
std::wstring withoutPrefix(const std::wstring& path) {
  constexpr std::wstring_view kServer = L"\\\\?\\UNC\\";
  constexpr std::wstring_view kDrive = L"\\\\?\\";
  if (path.starts_with(kServer)) return L"\\\\" + path.substr(kServer.size());
  return path.starts_with(kDrive) ? path.substr(kDrive.size()) : path;
}

}  // namespace

std::filesystem::path programFolder(std::span<const TextView> /*glossaries*/) {
  return std::filesystem::path(withoutPrefix(executablePath())).parent_path();
}

char16_t userDecimalSeparator() {
  std::array<wchar_t, 8> separator{};
  const int length = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator.data(),
                                     static_cast<int>(separator.size()));
  return length == 2 ? static_cast<char16_t>(separator[0]) : u'.';  // its end counts as well
}

}  // namespace termvik
