// SPDX-License-Identifier: MIT
// Whole files in, and one file out: whole or not at all.
#pragma once

#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/system/files.h"
#include "streams.h"
#include "text_in.h"

namespace termvik::tool {

// The name that stands for standard input and output.
inline constexpr std::string_view kStandardStream = "-";

// A file, or standard input. What goes wrong throws Failure, with the reason.
class Input {
 public:
  Input(std::string name, Streams& streams);

  const std::string& name() const { return name_; }

  // In bytes; 0 where it is not known.
  std::size_t size() const { return size_; }

  // Fills `room` with the next bytes and gives their number, which is 0 at the end.
  std::size_t read(std::span<char> room);

 private:
  std::string name_;
  Streams& streams_;
  std::size_t size_ = 0;
  std::unique_ptr<File> file_;  // empty for standard input
};

// All bytes that are left.
FileBytes readBytes(Input& input);

// Where the result goes. Until commit() nothing of it is there; then all of it.
class Output {
 public:
  // `name` is a path, or stands for standard output. A file that exists is replaced with `force`
  // only; an input is never. Throws Failure when it cannot be.
  Output(std::string name, const std::vector<std::string>& inputs, bool force, Streams& streams);
  ~Output();
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  void write(std::string_view bytes);
  void commit();

 private:
  [[noreturn]] void fail(std::string_view what) const;
  void refuseInputs(const std::vector<std::string>& inputs) const;
  void open();

  std::string name_;
  bool force_;
  Streams& streams_;
  std::filesystem::path target_;   // links resolved; empty for standard output
  std::filesystem::path scratch_;  // beside the target; empty when it is written to directly
  std::unique_ptr<File> file_;
};

}  // namespace termvik::tool
