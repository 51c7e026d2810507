// SPDX-License-Identifier: MIT
#include "bytes_check.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <utility>

#include "common/system/codepage.h"
#include "text_in.h"

namespace termvik::tool {

namespace {

void inspectEncoding(std::string_view bytes, Findings& findings) {
  const auto find = [&](std::size_t at, std::string_view what, std::size_t length) {
    const std::string seen = inQuotes(decodeAnsi(bytes.substr(at, length)));
    findings.push_back({LineCount(bytes).lineOf(at), &kinds::kEncoding,
                        std::string(what) + "; the program would show " + seen});
  };
  const ByteOrderMark mark = byteOrderMark(bytes);
  if (mark.length > 0) {
    find(0, "the file begins with a byte order mark", mark.length);
    return;
  }
  const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  const auto* const first = std::find_if_not(bytes.begin(), bytes.end(), isAscii);
  if (first == bytes.end() || !isUtf8(bytes)) return;
  const auto isFurther = [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
  };
  const auto* const end = std::find_if_not(first + 1, bytes.end(), isFurther);
  find(static_cast<std::size_t>(first - bytes.begin()), "the file is UTF-8",
       static_cast<std::size_t>(end - first));
}

void inspectLineEnds(std::string_view bytes, Findings& findings) {
  std::size_t count = 0;
  std::size_t first = 0;
  for (std::size_t at = bytes.find('\n'); at < bytes.size(); at = bytes.find('\n', at + 1)) {
    if (at > 0 && bytes[at - 1] == '\r') continue;
    if (count == 0) first = at;
    ++count;
  }
  if (count == 0) return;
  findings.push_back({LineCount(bytes).lineOf(first), &kinds::kLineEnds,
                      counted(count, "line ends", "lines end") +
                          " in LF without CR; the program takes what follows for the same line"});
}

constexpr std::array<bool, 256> makeControls() {
  std::array<bool, 256> controls{};
  for (std::size_t byte = 0; byte < ' '; ++byte) controls[byte] = true;
  controls['\t'] = controls['\r'] = controls['\n'] = false;
  // The last five are bytes that Windows-1252 leaves undefined.
  for (const std::size_t byte : {0x7FU, 0x81U, 0x8DU, 0x8FU, 0x90U, 0x9DU}) controls[byte] = true;
  return controls;
}

// Once for each line, so that a file that is no text does not fill the screen.
void inspectControls(std::string_view bytes, Findings& findings) {
  constexpr std::array<bool, 256> kIsControl = makeControls();
  const auto isControl = [&](char byte) { return kIsControl.at(static_cast<unsigned char>(byte)); };
  LineCount lines(bytes);
  for (auto at = bytes.begin();;) {
    at = std::find_if(at, bytes.end(), isControl);
    if (at == bytes.end()) return;
    const auto offset = static_cast<std::size_t>(at - bytes.begin());
    std::array<char, 4> digits{};
    std::snprintf(digits.data(), digits.size(), "%02X", static_cast<unsigned char>(*at));
    findings.push_back({lines.lineOf(offset), &kinds::kControl,
                        "the byte " + std::string(digits.data()) + " is a control character"});
    at += static_cast<std::ptrdiff_t>(std::min(bytes.find_first_of("\r\n", offset), bytes.size()) -
                                      offset);
  }
}

}  // namespace

bool inspectBytes(std::string_view bytes, Findings& findings) {
  const auto marked = byteOrderMark(bytes).encoding.value_or(Encoding::Utf8);
  if (marked != Encoding::Utf8 || looksLikeUtf16(bytes)) {
    findings.push_back(
        {1, &kinds::kEncoding, "the file is UTF-16; the program reads Windows-1252"});
    return true;
  }
  inspectEncoding(bytes, findings);
  inspectLineEnds(bytes, findings);
  inspectControls(bytes, findings);
  return false;
}

}  // namespace termvik::tool
