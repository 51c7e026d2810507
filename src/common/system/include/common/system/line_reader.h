// SPDX-License-Identifier: MIT
// A text file as lines. A line ends at CR LF or at a lone CR; a lone LF is a character of its line.
// A line end that is the last thing in the file opens no further line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "common/system/files.h"

namespace termvik {

// The most bytes of a file that is read. Positions and lengths in its text fit into 32 bits.
inline constexpr std::size_t kMostBytes = std::numeric_limits<std::int32_t>::max();

// How large a text file is.
struct FileMeasure {
  std::size_t lines = 0;  // as LineReader will find them
  std::size_t bytes = 0;
  std::size_t letters = 0;  // that its text has at most, with CR LF after each line
};

// False when the file cannot be read to its end, or when its bytes or letters are more than
// kMostBytes; no more of it is read than it takes to know.
bool measureFile(const Files& files, const std::filesystem::path& fileName, FileMeasure& measure);

// The lines of an 8-bit text file, one after the other.
class LineReader {
 public:
  // Reads no more than `most` bytes. If they all came, the file may go on, and a last line without
  // its end is not given.
  LineReader(const Files& files, const std::filesystem::path& fileName,
             std::size_t most = kMostBytes + 1);

  // The lines of a file whose bytes have been read already.
  explicit LineReader(std::string bytes);

  // Gives the next line's bytes without its line end. False at the end of the file and after a
  // failure; `line` is good until the next call.
  bool next(std::string_view& line);

  // The file could not be opened, or a reading failed.
  bool failed() const { return failed_; }

 private:
  bool refill();

  std::unique_ptr<File> file_;
  std::size_t most_ = 1;  // bytes that may still be read
  std::string buffer_;
  std::size_t position_ = 0;  // of the first byte in `buffer_` that no line has taken
  std::size_t filled_ = 0;    // bytes in `buffer_`
  bool failed_ = false;
};

}  // namespace termvik
