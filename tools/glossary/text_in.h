// SPDX-License-Identifier: MIT
// The characters of a file that somebody's editor, spreadsheet or other program has saved.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/system/large_vector.h"
#include "common/system/text.h"

namespace termvik::tool {

// The bytes and the text of a whole file.
using FileBytes = LargeVector<char>;
using FileText = LargeVector<char16_t>;

inline std::string_view viewOf(const FileBytes& bytes) { return {bytes.data(), bytes.size()}; }
inline TextView viewOf(const FileText& text) { return {text.data(), text.size()}; }

enum class Encoding : std::uint8_t { Utf8, Utf16Le, Utf16Be, Windows1252 };

std::optional<Encoding> encodingNamed(std::string_view name);

// The encoding that a byte order mark at the beginning of `bytes` stands for, and the mark's
// length.
struct ByteOrderMark {
  std::optional<Encoding> encoding;
  std::size_t length = 0;
};
ByteOrderMark byteOrderMark(std::string_view bytes);

// The lines of a text, as editors count them: asked for places that rise.
class LineCount {
 public:
  explicit LineCount(std::string_view bytes) : bytes_(bytes), nextCr_(bytes.find('\r')) {}

  std::uint32_t lineOf(std::size_t offset);

 private:
  std::string_view bytes_;
  std::size_t counted_ = 0;
  std::size_t nextCr_;  // at `counted_` or after it
  std::uint32_t line_ = 1;
};

// UTF-16 without a mark: half of the pairs of bytes, or more, have a NUL on one and the same side.
bool looksLikeUtf16(std::string_view bytes);

// Each byte is one character; `text` has room for all of them.
void decodeWindows1252(std::string_view bytes, char16_t* text);

// What decodeText() takes `bytes` for.
Encoding encodingOf(std::string_view bytes, std::optional<Encoding> encoding);

// A mark decides, else what is well-formed UTF-8 is that, and all else Windows-1252; `encoding`
// overrules. `name` is the file's for the Failure that is thrown when the bytes are not what they
// should be. A mark is no part of the text.
FileText decodeText(std::string_view bytes, std::optional<Encoding> encoding,
                    const std::string& name);

}  // namespace termvik::tool
