// SPDX-License-Identifier: MIT
// Runs of termvik-glossary over a sample glossary, in every format with a limit.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace termvik::bench {

// What the tool may take: times what the program takes to load the same entries, and times the
// bytes of the input.
inline constexpr double kTableLimit = 3;
inline constexpr double kTbxLimit = 10;
inline constexpr double kMemoryLimit = 12;

struct ToolRun {
  std::string name;
  std::vector<std::string> arguments;
  std::filesystem::path input;
  std::filesystem::path output;
  double limit = kTableLimit;
};

// Runs on the same entries as the sample of that size, in one file of each format. The input of a
// run is the output of one ahead of it.
const std::vector<ToolRun>& toolRuns(std::int64_t entries);

// Writes the input of a run unless it is there already.
void makeInput(const std::vector<ToolRun>& runs, const ToolRun& toolRun);

// Throws when the tool gives no result.
void run(const ToolRun& toolRun);

}  // namespace termvik::bench
