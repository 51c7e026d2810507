// The program's text files, as lines and as whole contents.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "common/text.h"

namespace termvik {

// `fileName` is not empty and an ordinary file of that name is there. Any failure of the test is
// false.
bool fileExists(const std::filesystem::path& fileName);

// The path of `fileName` inside `folder`, joined by the platform's separator without a look at the
// folder's end.
std::filesystem::path fileIn(const std::filesystem::path& folder, TextView fileName);

// A path as the user reads it.
Text pathText(const std::filesystem::path& path);

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

// Opens a file to read or to write its bytes; empty when it cannot be done. Writing replaces the
// file.
File openToRead(const std::filesystem::path& fileName);
File openToWrite(const std::filesystem::path& fileName);

// How large a text file is, as LineReader will find it.
struct FileMeasure {
  std::size_t lines = 0;
  std::size_t bytes = 0;
};

// False when the file cannot be read to its end.
bool measureFile(const std::filesystem::path& fileName, FileMeasure& measure);

// The lines of an 8-bit text file, one after the other. A line ends at CR LF or at a lone CR; a
// lone LF is a character of its line. A line end that is the last thing in the file opens no
// further line.
class LineReader {
 public:
  explicit LineReader(const std::filesystem::path& fileName);

  // Gives the next line's bytes without its line end. False at the end of the file and after a
  // failure; `line` is good until the next call.
  bool next(std::string_view& line);

  // The file could not be opened, or a reading failed.
  bool failed() const { return failed_; }

 private:
  bool refill();

  File file_;
  std::string buffer_;
  std::size_t position_ = 0;  // of the first byte in `buffer_` that no line has taken
  std::size_t filled_ = 0;    // bytes in `buffer_`
  bool failed_ = false;
};

}  // namespace termvik
