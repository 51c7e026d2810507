// SPDX-License-Identifier: MIT
// A run of termvik-glossary in a scratch folder.
#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "streams.h"
#include "support/store.h"
#include "tool.h"

namespace termvik::test {

struct Result {
  int status = 0;
  std::string out;
  std::string err;
};

// Inside `folder`, which stands nowhere in what is printed.
class ToolTest : public testing::Test {
 protected:
  ToolTest() { std::filesystem::current_path(folder.path); }
  ~ToolTest() override { std::filesystem::current_path(home_); }

  Result run(const Strings& arguments, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    tool::Streams streams{.in = in, .out = out, .err = err};
    const int status = tool::runTool(arguments, swedish(), streams);
    return {status, out.str(), err.str()};
  }

  // The bytes of a file as they are.
  std::string bytes(std::string_view name) const {
    std::ifstream file(folder.path / std::filesystem::path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  bool exists(const std::string& name) const { return std::filesystem::exists(folder.path / name); }

  // What `convert` makes of `content`, a file of that name, and what it says.
  std::string converted(const std::string& name, const std::string& content,
                        const Strings& options) {
    folder.writeBytes(name, content);
    Strings arguments = {"convert", name, "-"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    last = run(arguments);
    return last.out;
  }

  Folder folder;
  Result last;  // of converted()

 private:
  std::filesystem::path home_ = std::filesystem::current_path();
};

}  // namespace termvik::test
