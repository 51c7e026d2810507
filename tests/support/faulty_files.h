// SPDX-License-Identifier: MIT
// The files of the disk, with one operation that fails, and with a count of what is done to them.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "common/system/files.h"

namespace termvik::test {

// What comes short does half of what it is asked for before it fails.
enum class Fault { Fails, ComesShort };

class FaultyFiles : public Files {
 public:
  // The operation of that number fails, counted from 1 on from now; none for 0.
  void failAt(std::size_t number, Fault fault = Fault::Fails) {
    done_ = {};
    failing_ = number;
    fault_ = fault;
  }

  // Since the last failAt.
  std::size_t operations() const { return done_.operations; }
  std::size_t bytesRead() const { return done_.bytesRead; }
  const std::string& failed() const { return done_.failed; }  // such as `write tmpWordList.txt`

  // Called before each opening with its number, 1 for the first since the last failAt.
  std::function<void(std::size_t opening)> beforeOpening;

  std::unique_ptr<File> openToRead(const std::filesystem::path& fileName) const override {
    return opened(fileName, "open to read", &Files::openToRead);
  }
  std::unique_ptr<File> openToWrite(const std::filesystem::path& fileName) const override {
    return opened(fileName, "open to write", &Files::openToWrite);
  }

 private:
  struct Done {
    std::size_t openings = 0;
    std::size_t operations = 0;
    std::size_t bytesRead = 0;
    std::string failed;
  };

  class FaultyFile : public File {
   public:
    FaultyFile(const FaultyFiles& files, std::string name, std::unique_ptr<File> file)
        : files_(files), name_(std::move(name)), file_(std::move(file)) {}

    std::optional<std::size_t> read(std::span<char> room) override {
      const bool fails = files_.fails("read", name_);
      if (broken_ || (fails && files_.fault_ == Fault::Fails)) return std::nullopt;
      auto count = file_->read(room);
      broken_ = fails;
      if (fails && count) *count /= 2;
      files_.done_.bytesRead += count.value_or(0);
      return count;
    }
    bool write(std::string_view bytes) override {
      if (!files_.fails("write", name_)) return file_->write(bytes);
      if (files_.fault_ == Fault::ComesShort) file_->write(bytes.substr(0, bytes.size() / 2));
      return false;
    }
    bool close() override {
      const bool fails = files_.fails("close", name_);
      return file_->close() && !fails;
    }

   private:
    const FaultyFiles& files_;
    std::string name_;
    std::unique_ptr<File> file_;
    bool broken_ = false;
  };

  using Opening = std::unique_ptr<File> (Files::*)(const std::filesystem::path&) const;

  std::unique_ptr<File> opened(const std::filesystem::path& fileName, const std::string& act,
                               Opening open) const {
    if (beforeOpening) beforeOpening(done_.openings + 1);
    ++done_.openings;
    const std::string name = fileName.filename().string();
    if (fails(act, name)) return nullptr;
    std::unique_ptr<File> file = (disk().*open)(fileName);
    return file ? std::make_unique<FaultyFile>(*this, name, std::move(file)) : nullptr;
  }

  bool fails(const std::string& act, const std::string& name) const {
    const bool fails = ++done_.operations == failing_;
    if (fails) done_.failed = act + " " + name;
    return fails;
  }

  std::size_t failing_ = 0;
  Fault fault_ = Fault::Fails;
  mutable Done done_;
};

}  // namespace termvik::test
