// SPDX-License-Identifier: MIT
// The command line.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "check.h"
#include "common/collation/collation.h"
#include "formats.h"

namespace termvik::tool {

enum class Command : std::uint8_t { Check, Convert, Merge, Stats };

struct Options {
  Command command = Command::Check;
  std::vector<std::string> inputs;
  std::vector<Format> inputFormats;  // of each input
  std::string output;                // of convert and merge
  Format outputFormat = Format::Glossary;
  CheckOptions check;
  ReadOptions read;
  std::optional<Text> title;
  bool lossy = false;
  bool force = false;
  bool join = false;
};

// What a command line asks for: a command, or only a text that is printed, such as the help.
struct Request {
  std::optional<Options> options;
  std::string text;
};

// `arguments` are what stands after the program's name. Throws Failure for wrong usage.
Request readArguments(const std::vector<std::string>& arguments, const Collation& collation);

}  // namespace termvik::tool
