// SPDX-License-Identifier: MIT
// The program's files in memory. Where it asks whether a file is there, it looks at a folder of the
// disk, in which empty ones stand for them.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>

#include "common/system/app.h"
#include "support/store.h"

namespace termvik::fuzz {

class MemoryFiles : public Files {
 public:
  MemoryFiles() {
    for (const char* name : {"graphword.txt", "toolsword.txt", "Termvik.par"}) write(name, "");
  }

  void write(const std::string& name, std::string_view bytes) const { bytes_[name] = bytes; }
  const std::string& read(const std::string& name) const { return bytes_[name]; }

  std::unique_ptr<File> openToRead(const std::filesystem::path& fileName) const override {
    return std::make_unique<MemoryFile>(bytes_[fileName.filename().string()]);
  }
  std::unique_ptr<File> openToWrite(const std::filesystem::path& fileName) const override {
    std::string& bytes = bytes_[fileName.filename().string()];
    bytes.clear();
    return std::make_unique<MemoryFile>(bytes);
  }

 private:
  class MemoryFile : public File {
   public:
    explicit MemoryFile(std::string& bytes) : bytes_(bytes) {}

    std::optional<std::size_t> read(std::span<char> room) override {
      const std::size_t count = bytes_.copy(room.data(), room.size(), position_);
      position_ += count;
      return count;
    }
    bool write(std::string_view bytes) override {
      bytes_.append(bytes);
      return true;
    }
    bool close() override { return true; }

   private:
    std::string& bytes_;
    std::size_t position_ = 0;
  };

  mutable std::map<std::string, std::string> bytes_;  // by name
};

// A program's surroundings with such files.
struct MemoryApp : App {
  MemoryApp() {
    static const Folder kFolder;
    Path = kFolder.folder.path;
    files = &memory;
  }

  MemoryFiles memory;

 private:
  struct Folder {
    Folder() {
      for (const char* name : {"graphword.txt", "toolsword.txt", "Termvik.par"}) {
        folder.writeBytes(name, "");
      }
    }
    test::Folder folder;
  };
};

}  // namespace termvik::fuzz
