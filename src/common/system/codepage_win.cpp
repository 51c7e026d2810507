// SPDX-License-Identifier: MIT
// The system's ANSI code page. Where that is UTF-8, the files are in Windows-1252 as they are
// everywhere else. In the double-byte pages of East Asia a lead byte and the byte after it give
// one character; no such byte is a CR or an LF, so that lines end where they always end.
#include <array>
#include <vector>
#include <windows.h>

#include "common/system/codepage.h"
#include "common/system/wide_win.h"
#include "common/system/windows_1252.h"

namespace termvik {

namespace {

class AnsiPage {
 public:
  AnsiPage() : bytes_(0x10000, '?') {
    CPINFO info{};
    doubleByte_ = GetACP() != CP_UTF8 && GetCPInfo(CP_ACP, &info) && info.MaxCharSize > 1;
    for (unsigned byte = 256; byte-- > 0;) {  // of two bytes for one character the lower one wins
      characters_[byte] = characterOf(static_cast<unsigned char>(byte));
      bytes_[characters_[byte]] = static_cast<char>(byte);
    }
  }

  bool doubleByte() const { return doubleByte_; }
  char16_t character(char byte) const { return characters_[static_cast<unsigned char>(byte)]; }
  char byte(char16_t character) const { return bytes_[character]; }

 private:
  // A byte that the page leaves undefined, or that only begins a character, stands for its own
  // code.
  static char16_t characterOf(unsigned char byte) {
    if (GetACP() == CP_UTF8) return windows1252::decode(byte);
    const auto source = static_cast<char>(byte);
    wchar_t character = 0;
    const int length = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &source, 1, &character, 1);
    return length == 1 ? static_cast<char16_t>(character) : byte;
  }

  bool doubleByte_ = false;
  std::array<char16_t, 256> characters_{};  // by byte
  std::vector<char> bytes_;                 // by character, '?' for one that the page lacks
};

const AnsiPage& ansiPage() {
  static const AnsiPage page;
  return page;
}

std::size_t decodeDoubleByte(std::string_view bytes, char16_t* out) {
  if (bytes.empty()) return 0;
  const auto size = static_cast<int>(bytes.size());
  return static_cast<std::size_t>(
      MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, wide(out), size));
}

// Character by character: Windows would make one '?' of a surrogate pair on some of its versions.
std::string encodeDoubleByte(TextView text) {
  std::string bytes;
  for (const char16_t& character : text) {
    std::array<char, 4> encoded{};
    const int length =
        WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide(&character), 1, encoded.data(),
                            static_cast<int>(encoded.size()), "?", nullptr);
    bytes.append(encoded.data(), static_cast<std::size_t>(length));
  }
  return bytes;
}

}  // namespace

std::size_t decodeAnsi(std::string_view bytes, char16_t* out) {
  const AnsiPage& page = ansiPage();
  if (page.doubleByte()) return decodeDoubleByte(bytes, out);
  for (const char byte : bytes) *out++ = page.character(byte);
  return bytes.size();
}

std::string encodeAnsi(TextView text) {
  const AnsiPage& page = ansiPage();
  if (page.doubleByte()) return encodeDoubleByte(text);
  std::string bytes;
  bytes.reserve(text.size());
  for (const char16_t character : text) bytes.push_back(page.byte(character));
  return bytes;
}

Text ansiCharacters() {
  Text characters;
  for (int byte = 0; byte < 256; ++byte) {
    characters.push_back(ansiPage().character(static_cast<char>(byte)));
  }
  return characters;
}

}  // namespace termvik
