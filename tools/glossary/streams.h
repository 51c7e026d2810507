// SPDX-License-Identifier: MIT
// What a run of the tool reads from and writes to beside the files that it is given.
#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <utility>

namespace termvik::tool {

// Tells files apart whatever their names: two names with the same id are one file.
using FileId = std::pair<std::uint64_t, std::uint64_t>;

// Nothing for what is not there and for what is no ordinary file.
std::optional<FileId> fileId(const std::filesystem::path& path);

// A path and what stands for it on the command line and in messages. On Linux both are the same
// bytes; on Windows an argument is UTF-8, in which half of a surrogate pair stays one.
std::filesystem::path pathOf(const std::string& argument);
std::string argumentOf(const std::filesystem::path& path);

// Standard input, output and error. They carry bytes: no line end is changed.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool errIsTerminal = false;
  std::optional<FileId> inId = {};  // of a file that standard input or output was led to
  std::optional<FileId> outId = {};
};

}  // namespace termvik::tool
