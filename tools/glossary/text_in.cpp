// SPDX-License-Identifier: MIT
#include "text_in.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/system/windows_1252.h"
#include "lower_case.h"
#include "messages.h"

namespace termvik::tool {

namespace {

using Name = std::pair<std::string_view, Encoding>;

constexpr std::array<Name, 4> kNames{{{"utf-8", Encoding::Utf8},
                                      {"utf-16le", Encoding::Utf16Le},
                                      {"utf-16be", Encoding::Utf16Be},
                                      {"windows-1252", Encoding::Windows1252}}};

constexpr std::array<Name, 3> kMarks{{{"\xEF\xBB\xBF", Encoding::Utf8},
                                      {"\xFF\xFE", Encoding::Utf16Le},
                                      {"\xFE\xFF", Encoding::Utf16Be}}};

FileText fromUtf16(std::string_view bytes, bool littleEndian) {
  FileText text(bytes.size() / 2);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const unsigned first = static_cast<unsigned char>(bytes[2 * i]);
    const unsigned second = static_cast<unsigned char>(bytes[2 * i + 1]);
    const unsigned unit = littleEndian ? second << 8U | first : first << 8U | second;
    text[i] = static_cast<char16_t>(unit);
  }
  return text;
}

bool isInsideCharacter(char utf8Byte) {
  return (static_cast<unsigned char>(utf8Byte) & 0xC0U) == 0x80;
}

// Piece by piece: what a piece needs for a while stays in the cache.
FileText fromWellFormedUtf8(std::string_view bytes) {
  constexpr std::size_t kPiece = 1U << 15U;
  FileText text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    std::size_t end = std::min(kPiece, bytes.size());
    while (end < bytes.size() && isInsideCharacter(bytes[end])) --end;
    const Text piece = fromUtf8(bytes.substr(0, end));
    text.insert(text.end(), piece.begin(), piece.end());
    bytes.remove_prefix(end);
  }
  return text;
}

// The first line, as editors count, that is no UTF-8; a character never spans two lines.
std::size_t firstBadLine(std::string_view bytes) {
  std::size_t line = 1;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
    if (!isUtf8(bytes.substr(0, end))) break;
    bytes.remove_prefix(end);
    bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, bytes.size()));
    ++line;
  }
  return line;
}

}  // namespace

std::optional<Encoding> encodingNamed(std::string_view name) {
  const std::string lower = lowerCase(name);
  for (const auto& [known, encoding] : kNames) {
    if (lower == known) return encoding;
  }
  return std::nullopt;
}

ByteOrderMark byteOrderMark(std::string_view bytes) {
  for (const auto& [mark, encoding] : kMarks) {
    if (bytes.starts_with(mark)) return {encoding, mark.size()};
  }
  return {};
}

// Nearly all bytes have the code of their character, and the compiler widens many at a time.
void decodeWindows1252(std::string_view bytes, char16_t* text) {
  int anySpecial = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    text[i] = byte;
    anySpecial |= static_cast<int>(windows1252::isSpecial(byte));
  }
  if (anySpecial == 0) return;
  std::transform(bytes.begin(), bytes.end(), text,
                 [](char byte) { return windows1252::decode(static_cast<unsigned char>(byte)); });
}

std::uint32_t LineCount::lineOf(std::size_t offset) {
  if (offset <= counted_) return line_;
  const std::string_view passed = bytes_.substr(counted_, offset - counted_);
  auto ends = std::count(passed.begin(), passed.end(), '\n');
  for (; nextCr_ < offset; nextCr_ = bytes_.find('\r', nextCr_ + 1)) {
    if (!bytes_.substr(nextCr_ + 1).starts_with('\n')) ++ends;
  }
  line_ += static_cast<std::uint32_t>(ends);
  counted_ = offset;
  return line_;
}

bool looksLikeUtf16(std::string_view bytes) {
  if (bytes.find('\0') == std::string_view::npos) return false;
  std::array<std::size_t, 2> nuls{};
  for (std::size_t i = 0; i < bytes.size(); ++i) nuls.at(i % 2) += bytes[i] == '\0' ? 1 : 0;
  const std::size_t pairs = bytes.size() / 2;
  const auto [fewer, more] = std::minmax(nuls[0], nuls[1]);
  return pairs > 1 && 2 * more > pairs && 10 * fewer < more;
}

Encoding encodingOf(std::string_view bytes, std::optional<Encoding> encoding) {
  if (!encoding) encoding = byteOrderMark(bytes).encoding;
  if (encoding) return *encoding;
  return isUtf8(bytes) ? Encoding::Utf8 : Encoding::Windows1252;
}

FileText decodeText(std::string_view bytes, std::optional<Encoding> chosen,
                    const std::string& name) {
  const ByteOrderMark mark = byteOrderMark(bytes);
  const Encoding encoding = encodingOf(bytes, chosen);
  const bool isFound = !chosen && !mark.encoding;  // by a look at all bytes
  if (encoding == mark.encoding) bytes.remove_prefix(mark.length);
  switch (encoding) {
    case Encoding::Utf8:
      if (isFound || isUtf8(bytes)) return fromWellFormedUtf8(bytes);
      throw Failure(placeText(name, firstBadLine(bytes)) + "error: this is no UTF-8");
    case Encoding::Utf16Le:
    case Encoding::Utf16Be:
      if (bytes.size() % 2 == 0) return fromUtf16(bytes, encoding == Encoding::Utf16Le);
      throw Failure(name + ": error: this is no UTF-16: it ends inside a character");
    case Encoding::Windows1252:
      break;
  }
  FileText text(bytes.size());
  decodeWindows1252(bytes, text.data());
  return text;
}

}  // namespace termvik::tool
