#include "common/files.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

namespace termvik {

namespace {

constexpr std::size_t kPiece = 1U << 15U;  // bytes read at a time

// In stretches that a count of one byte can hold, which the compiler counts many bytes at a time
// (bench/load).
std::size_t countCrs(std::string_view bytes) {
  constexpr std::size_t kStretch = std::numeric_limits<std::uint8_t>::max();
  std::size_t count = 0;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(bytes.size(), kStretch))) {
    std::uint8_t inStretch = 0;
    for (const char byte : bytes.substr(0, kStretch)) {
      inStretch = static_cast<std::uint8_t>(inStretch + (byte == '\r' ? 1 : 0));
    }
    count += inStretch;
  }
  return count;
}

}  // namespace

bool fileExists(const std::filesystem::path& fileName) {
  std::error_code error;
  return !fileName.empty() && std::filesystem::is_regular_file(fileName, error);
}

std::filesystem::path fileIn(const std::filesystem::path& folder, TextView fileName) {
  std::filesystem::path path = folder;
  path += std::filesystem::path::preferred_separator;
  path += std::filesystem::path(fileName);
  return path;
}

bool measureFile(const std::filesystem::path& fileName, FileMeasure& measure) {
  measure = {};
  const File file = openToRead(fileName);
  if (!file) return false;
  std::vector<char> piece(kPiece);
  std::string tail;  // the last two bytes
  while (const std::size_t read = std::fread(piece.data(), 1, piece.size(), file.get())) {
    const std::string_view bytes(piece.data(), read);
    measure.bytes += read;
    measure.lines += countCrs(bytes);
    tail.append(bytes.substr(read - std::min<std::size_t>(read, 2)));
    tail.erase(0, tail.size() - std::min<std::size_t>(tail.size(), 2));
  }
  const bool lastLineEnds = tail.ends_with('\r') || tail == "\r\n";
  if (!tail.empty() && !lastLineEnds) ++measure.lines;
  return std::ferror(file.get()) == 0;
}

LineReader::LineReader(const std::filesystem::path& fileName)
    : file_(openToRead(fileName)), buffer_(kPiece, '\0'), failed_(file_ == nullptr) {}

bool LineReader::next(std::string_view& line) {
  std::size_t searched = position_;
  for (;;) {
    const std::size_t end =
        std::string_view(buffer_.data(), filled_).find('\r', std::min(searched, filled_));
    // What stands behind a CR decides where the next line begins, so it must have been read.
    if (end != std::string_view::npos && end + 1 < filled_) {
      line = std::string_view(buffer_).substr(position_, end - position_);
      position_ = end + (buffer_[end + 1] == '\n' ? 2 : 1);
      return true;
    }
    searched = (end == std::string_view::npos ? filled_ : end) - position_;
    if (refill()) {
      searched += position_;
      continue;
    }
    if (failed_ || position_ == filled_) return false;
    line = std::string_view(buffer_).substr(position_, filled_ - position_);
    if (line.ends_with('\r')) line.remove_suffix(1);
    position_ = filled_;
    return true;
  }
}

// Moves the unfinished line to the front of the buffer and reads on behind it.
bool LineReader::refill() {
  if (failed_) return false;
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(position_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(filled_), buffer_.begin());
  filled_ -= position_;
  position_ = 0;
  if (filled_ == buffer_.size()) buffer_.resize(2 * buffer_.size());
  const std::size_t read =
      std::fread(buffer_.data() + filled_, 1, buffer_.size() - filled_, file_.get());
  filled_ += read;
  failed_ = std::ferror(file_.get()) != 0;
  return read > 0;
}

}  // namespace termvik
