// SPDX-License-Identifier: MIT
// The program's files: where they lie, and how they are opened, read and written.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "common/system/text.h"

namespace termvik {

// `fileName` is not empty and an ordinary file of that name is there. Any failure of the test is
// false.
bool fileExists(const std::filesystem::path& fileName);

// The path of `fileName` inside `folder`, joined by the platform's separator without a look at the
// folder's end.
std::filesystem::path fileIn(const std::filesystem::path& folder, TextView fileName);

// A path as the user reads it.
Text pathText(const std::filesystem::path& path);

// An open file. Closes with its object at the latest.
class File {
 public:
  File() = default;
  virtual ~File() = default;
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  // Fills `room` with the file's next bytes and gives their number, which is 0 at the end of the
  // file. Nothing when the reading fails.
  virtual std::optional<std::size_t> read(std::span<char> room) = 0;

  // False when not all of the bytes were taken.
  virtual bool write(std::string_view bytes) = 0;

  // To be called once. False when something that was written has not arrived.
  virtual bool close() = 0;
};

// Where files are opened. All that the program reads and writes goes through one of these, so that
// tests can have one that fails at any moment.
class Files {
 public:
  Files() = default;
  virtual ~Files() = default;
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  // Empty when the file cannot be opened.
  virtual std::unique_ptr<File> openToRead(const std::filesystem::path& fileName) const = 0;

  // Replaces the file by an empty one. Empty when that cannot be done; an older file is then whole.
  virtual std::unique_ptr<File> openToWrite(const std::filesystem::path& fileName) const = 0;
};

// The files of the system.
const Files& disk();

// Replaces the file by `bytes`. False when they have not all arrived.
bool writeFile(const Files& files, const std::filesystem::path& fileName, std::string_view bytes);

}  // namespace termvik
