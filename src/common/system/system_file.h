// SPDX-License-Identifier: MIT
// How each platform opens a file by its path.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace termvik {

enum class Purpose { Read, Write };

struct SystemFileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using SystemFile = std::unique_ptr<std::FILE, SystemFileCloser>;

// For bytes as they are; writing empties the file. Empty when it cannot be done.
SystemFile openSystemFile(const std::filesystem::path& fileName, Purpose purpose);

}  // namespace termvik
