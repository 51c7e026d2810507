// SPDX-License-Identifier: MIT
#include "files_in_out.h"

#include <cerrno>
#include <cstring>
#include <istream>
#include <ostream>
#include <random>
#include <span>
#include <vector>

#include "common/system/line_reader.h"
#include "messages.h"

namespace termvik::tool {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPiece = 1U << 16U;

std::string reason() { return errno == 0 ? "" : std::string(": ") + std::strerror(errno); }

// A name beside `target` that nothing has; the same folder lies on the same disk.
fs::path scratchBeside(const fs::path& target) {
  return target.parent_path() / (".termvik-" + std::to_string(std::random_device{}()));
}

}  // namespace

Input::Input(std::string name, Streams& streams) : name_(std::move(name)), streams_(streams) {
  if (name_ == kStandardStream) return;
  const fs::path path = pathOf(name_);
  std::error_code error;
  const std::uintmax_t size = fs::is_regular_file(path, error) ? fs::file_size(path, error) : 0;
  if (!error) size_ = static_cast<std::size_t>(size);
  errno = 0;
  file_ = disk().openToRead(path);
  if (!file_) throw Failure(name_ + ": error: cannot be read" + reason());
}

std::size_t Input::read(std::span<char> room) {
  if (!file_) {
    streams_.in.read(room.data(), static_cast<std::streamsize>(room.size()));
    return static_cast<std::size_t>(streams_.in.gcount());
  }
  errno = 0;
  const auto count = file_->read(room);
  if (!count) throw Failure(name_ + ": error: cannot be read" + reason());
  return *count;
}

FileBytes readBytes(Input& input) {
  FileBytes bytes(std::min(input.size(), kMostBytes) + kPiece);
  for (std::size_t used = 0;;) {
    if (bytes.size() - used < kPiece) bytes.resize(used + std::max(used, kPiece));
    const std::size_t count = input.read(std::span(bytes).subspan(used));
    used += count;
    if (used > kMostBytes) throw Failure(input.name() + ": error: the file is larger than 2 GB");
    if (count > 0) continue;
    bytes.resize(used);
    return bytes;
  }
}

Output::Output(std::string name, const std::vector<std::string>& inputs, bool force,
               Streams& streams)
    : name_(std::move(name)), force_(force), streams_(streams) {
  if (name_ != kStandardStream) {
    std::error_code error;
    target_ = pathOf(name_);
    if (fs::is_symlink(target_, error)) target_ = fs::weakly_canonical(target_, error);
  }
  refuseInputs(inputs);
  if (target_.empty()) return;
  std::error_code error;
  if (fs::is_directory(target_, error)) fail("is a folder");
  if (!force_ && fs::exists(fs::symlink_status(target_, error))) {
    fail("exists; --force replaces it");
  }
}

Output::~Output() {
  file_.reset();
  std::error_code error;
  if (!scratch_.empty()) fs::remove(scratch_, error);
}

void Output::fail(std::string_view what) const {
  throw Failure(name_ + ": error: " + std::string(what));
}

void Output::refuseInputs(const std::vector<std::string>& inputs) const {
  const auto id = target_.empty() ? streams_.outId : fileId(target_);
  if (!id) return;
  for (const std::string& input : inputs) {
    const auto inputId = input == kStandardStream ? streams_.inId : fileId(pathOf(input));
    if (id == inputId) fail("is also an input, which is never changed");
  }
}

// What is no ordinary file, such as a pipe, cannot be replaced by one: it is written to directly.
void Output::open() {
  std::error_code error;
  const fs::file_status status = fs::status(target_, error);
  const bool replaces = fs::is_regular_file(status);
  errno = 0;
  if (fs::exists(status) && !replaces) {
    file_ = disk().openToWrite(target_);
  } else {
    scratch_ = scratchBeside(target_);
    file_ = disk().openToWrite(scratch_);
  }
  if (!file_) {
    scratch_.clear();
    fail("cannot be written" + reason());
  }
  const auto permissions = status.permissions();
  const bool mayBeWritten = (permissions & fs::perms::owner_write) != fs::perms::none;
  if (replaces && mayBeWritten) fs::permissions(scratch_, permissions, error);
}

void Output::write(std::string_view bytes) {
  errno = 0;
  if (target_.empty()) {
    streams_.out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!streams_.out) fail("cannot be written" + reason());
    return;
  }
  if (!file_) open();
  if (!file_->write(bytes)) fail("cannot be written" + reason());
}

void Output::commit() {
  write("");  // so that there is a file even for a result without a byte
  if (target_.empty()) {
    if (!streams_.out.flush()) fail("cannot be written" + reason());
    return;
  }
  errno = 0;
  const bool arrived = file_->close();
  file_.reset();
  if (!arrived) fail("cannot be written" + reason());
  if (scratch_.empty()) return;
  std::error_code error;
  if (!force_ && fs::exists(fs::symlink_status(target_, error))) {
    fail("exists; --force replaces it");
  }
  fs::rename(scratch_, target_, error);
  if (error) fail("cannot be written: " + error.message());
  scratch_.clear();
}

}  // namespace termvik::tool
