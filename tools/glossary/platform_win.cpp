// SPDX-License-Identifier: MIT
// Files and arguments where paths are UTF-16.
#include <io.h>
#include <windows.h>

#include "common/system/wide_win.h"
#include "platform.h"
#include "streams.h"

namespace termvik::tool {

namespace {

std::optional<FileId> idOf(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION facts{};
  if (GetFileType(file) != FILE_TYPE_DISK || GetFileInformationByHandle(file, &facts) == 0) {
    return std::nullopt;
  }
  const auto high = static_cast<std::uint64_t>(facts.nFileIndexHigh) << 32U;
  return FileId(facts.dwVolumeSerialNumber, high | facts.nFileIndexLow);
}

// A byte after the first one of a character: it holds six bits of the code.
constexpr unsigned kFurther = 0x80;
constexpr unsigned kFurtherBits = 0x3F;

bool isHigh(unsigned unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLow(unsigned unit) { return unit >= 0xDC00 && unit < 0xE000; }

void appendUtf8(std::string& bytes, unsigned code) {
  const auto further = [code](unsigned bits) {
    return static_cast<char>(kFurther | (code >> bits & kFurtherBits));
  };
  if (code < 0x80) {
    bytes += static_cast<char>(code);
  } else if (code < 0x800) {
    bytes.append({static_cast<char>(0xC0 | code >> 6U), further(0)});
  } else if (code < 0x10000) {
    bytes.append({static_cast<char>(0xE0 | code >> 12U), further(6), further(0)});
  } else {
    bytes.append({static_cast<char>(0xF0 | code >> 18U), further(12), further(6), further(0)});
  }
}

// The code of the character at `at`, which goes after it. The bytes come from appendUtf8.
unsigned takeCode(std::string_view bytes, std::size_t& at) {
  const auto first = static_cast<unsigned char>(bytes[at++]);
  if (first < 0x80) return first;
  const unsigned count = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
  unsigned code = first & (kFurtherBits >> count);
  for (unsigned i = 0; i < count && at < bytes.size(); ++i) {
    code = code << 6U | (static_cast<unsigned char>(bytes[at++]) & kFurtherBits);
  }
  return code;
}

}  // namespace

std::optional<FileId> fileId(const std::filesystem::path& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  HANDLE file = CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  const auto id = idOf(file);
  CloseHandle(file);
  return id;
}

std::optional<FileId> openFileId(int descriptor) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the library gives it so
  return idOf(reinterpret_cast<HANDLE>(_get_osfhandle(descriptor)));
}

std::string argumentOf(const std::filesystem::path& path) {
  const std::wstring& wideText = path.native();
  std::string bytes;
  for (std::size_t i = 0; i < wideText.size(); ++i) {
    unsigned code = wideText[i];
    if (isHigh(code) && i + 1 < wideText.size() && isLow(wideText[i + 1])) {
      code = 0x10000 + ((code - 0xD800) << 10U) + (wideText[++i] - 0xDC00U);
    }
    appendUtf8(bytes, code);
  }
  return bytes;
}

std::filesystem::path pathOf(const std::string& argument) {
  std::wstring wideText;
  for (std::size_t at = 0; at < argument.size();) {
    const unsigned code = takeCode(argument, at);
    if (code >= 0x10000) {
      wideText += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10U));
      wideText += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FFU));
    } else {
      wideText += static_cast<wchar_t>(code);
    }
  }
  return wideText;
}

}  // namespace termvik::tool
