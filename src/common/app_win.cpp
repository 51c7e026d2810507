// The program's surroundings on Windows.
#include <array>
#include <string>
#include <windows.h>

#include "common/app.h"

namespace termvik {

namespace {

constexpr DWORD kFirstSize = 512;  // characters; most paths are shorter

// What `fill(buffer, size)` writes into a buffer that is large enough for it: it returns the number
// of characters, or `size` or more when there is no room, or 0 when it fails.
template <class Fill>
std::wstring grown(Fill fill) {
  std::wstring text(kFirstSize, L'\0');
  for (;;) {
    const DWORD length = fill(text.data(), static_cast<DWORD>(text.size()));
    if (length < text.size()) {
      text.resize(length);
      return text;
    }
    text.resize(2 * text.size());
  }
}

// `path` with all links resolved; empty when Windows does not tell.
std::wstring resolved(const std::wstring& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  HANDLE file = CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return {};
  std::wstring target = grown([file](wchar_t* buffer, DWORD size) {
    return GetFinalPathNameByHandleW(file, buffer, size, FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
  });
  CloseHandle(file);
  return target;
}

// The form of the path that a user knows, `C:\...` or `\\server\...`.
std::wstring withoutPrefix(const std::wstring& path) {
  constexpr std::wstring_view kServer = L"\\\\?\\UNC\\";
  constexpr std::wstring_view kDrive = L"\\\\?\\";
  if (path.starts_with(kServer)) return L"\\\\" + path.substr(kServer.size());
  return path.starts_with(kDrive) ? path.substr(kDrive.size()) : path;
}

}  // namespace

std::filesystem::path programFolder() {
  const std::wstring executable =
      grown([](wchar_t* buffer, DWORD size) { return GetModuleFileNameW(nullptr, buffer, size); });
  const std::wstring target = resolved(executable);
  const std::filesystem::path path = withoutPrefix(target.empty() ? executable : target);
  return path.parent_path();
}

char16_t userDecimalSeparator() {
  std::array<wchar_t, 8> separator{};
  const int length = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator.data(),
                                     static_cast<int>(separator.size()));
  return length == 2 ? static_cast<char16_t>(separator[0]) : u'.';  // its end counts as well
}

}  // namespace termvik
