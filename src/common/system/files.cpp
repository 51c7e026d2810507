// SPDX-License-Identifier: MIT
#include "common/system/files.h"

#include <utility>

#include "system_file.h"

namespace termvik {

namespace {

class DiskFile : public File {
 public:
  explicit DiskFile(SystemFile file) : file_(std::move(file)) {}

  // What came before a failure counts: the next reading tells of it.
  std::optional<std::size_t> read(std::span<char> room) override {
    const std::size_t count = std::fread(room.data(), 1, room.size(), file_.get());
    if (count == 0 && std::ferror(file_.get()) != 0) return std::nullopt;
    return count;
  }
  bool write(std::string_view bytes) override {
    return std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size();
  }
  bool close() override { return std::fclose(file_.release()) == 0; }

 private:
  SystemFile file_;
};

std::unique_ptr<File> fileOf(SystemFile file) {
  return file ? std::make_unique<DiskFile>(std::move(file)) : nullptr;
}

class Disk : public Files {
 public:
  std::unique_ptr<File> openToRead(const std::filesystem::path& fileName) const override {
    return fileOf(openSystemFile(fileName, Purpose::Read));
  }
  std::unique_ptr<File> openToWrite(const std::filesystem::path& fileName) const override {
    return fileOf(openSystemFile(fileName, Purpose::Write));
  }
};

}  // namespace

const Files& disk() {
  static const Disk disk;
  return disk;
}

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

bool writeFile(const Files& files, const std::filesystem::path& fileName, std::string_view bytes) {
  const std::unique_ptr<File> file = files.openToWrite(fileName);
  if (!file) return false;
  const bool written = file->write(bytes);
  return file->close() && written;
}

}  // namespace termvik
