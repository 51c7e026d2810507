// SPDX-License-Identifier: MIT
#include "common/system/line_reader.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace termvik {

namespace {

constexpr std::size_t kPiece = 1U << 15U;  // bytes read at a time

// At how many of the places below `size` something holds. In stretches that a count of one byte can
// hold, which the compiler counts many places at a time (bench/load).
template <class Holds>
std::size_t countPlaces(std::size_t size, Holds holds) {
  constexpr std::size_t kStretch = std::numeric_limits<std::uint8_t>::max();
  std::size_t count = 0;
  for (std::size_t begin = 0; begin < size; begin += kStretch) {
    const std::size_t end = std::min(begin + kStretch, size);
    std::uint8_t inStretch = 0;
    for (std::size_t place = begin; place < end; ++place) {
      inStretch = static_cast<std::uint8_t>(inStretch + (holds(place) ? 1 : 0));
    }
    count += inStretch;
  }
  return count;
}

// Adds the `size` bytes that follow the byte at `before`.
void add(const char* before, std::size_t size, FileMeasure& measure) {
  // A byte above 7F can be three letters, as ¾ is; another is one at the most.
  constexpr std::size_t kMoreLetters = 2;
  const char* const bytes = before + 1;
  const auto isCr = [bytes](std::size_t at) { return bytes[at] == '\r'; };
  const auto isHigh = [bytes](std::size_t at) { return static_cast<signed char>(bytes[at]) < 0; };
  const auto endsCrLf = [before](std::size_t at) {
    return static_cast<int>(before[at] == '\r') & static_cast<int>(before[at + 1] == '\n');
  };
  const std::size_t crs = countPlaces(size, isCr);
  measure.lines += crs;
  measure.bytes += size;
  measure.letters += size + kMoreLetters * countPlaces(size, isHigh);
  // A lone CR becomes CR LF where lines are joined.
  measure.letters += crs;
  measure.letters -= countPlaces(size, endsCrLf);
}

}  // namespace

bool measureFile(const Files& files, const std::filesystem::path& fileName, FileMeasure& measure) {
  measure = {};
  const std::unique_ptr<File> file = files.openToRead(fileName);
  if (!file) return false;
  constexpr std::size_t kKept = 2;  // bytes of the piece before, in front of each piece
  std::vector<char> bytes(kKept + kPiece, '\0');
  for (;;) {
    const auto read = file->read(std::span(bytes).subspan(kKept));
    if (!read) return false;
    if (*read == 0) break;
    add(&bytes[kKept - 1], *read, measure);
    if (measure.letters > kMostBytes) return false;
    std::copy_n(&bytes[*read], kKept, bytes.data());
  }
  const bool lastLineEnds = bytes[1] == '\r' || (bytes[0] == '\r' && bytes[1] == '\n');
  if (measure.bytes > 0 && !lastLineEnds) ++measure.lines;
  return true;
}

LineReader::LineReader(const Files& files, const std::filesystem::path& fileName, std::size_t most)
    : file_(files.openToRead(fileName)),
      most_(most),
      buffer_(std::min(kPiece, most), '\0'),
      failed_(file_ == nullptr) {}

LineReader::LineReader(std::string bytes) : buffer_(std::move(bytes)), filled_(buffer_.size()) {}

bool LineReader::next(std::string_view& line) {
  std::size_t searched = position_;
  for (;;) {
    const std::size_t end =
        std::string_view(buffer_.data(), filled_).find('\r', std::min(searched, filled_));
    // What follows a CR decides where the next line begins, so it must have been read.
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
    position_ = filled_;
    if (line.ends_with('\r')) {
      line.remove_suffix(1);
    } else if (most_ == 0) {
      return false;
    }
    return true;
  }
}

// Moves the unfinished line to the front of the buffer and reads on after it.
bool LineReader::refill() {
  if (failed_ || !file_ || most_ == 0) return false;
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(position_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(filled_), buffer_.begin());
  filled_ -= position_;
  position_ = 0;
  if (filled_ == buffer_.size()) buffer_.resize(2 * buffer_.size());
  const std::size_t room = std::min(buffer_.size() - filled_, most_);
  const auto read = file_->read(std::span(buffer_).subspan(filled_, room));
  failed_ = !read;
  filled_ += read.value_or(0);
  most_ -= read.value_or(0);
  return read.value_or(0) > 0;
}

}  // namespace termvik
