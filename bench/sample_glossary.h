// SPDX-License-Identifier: MIT
// A made-up glossary of any size, the same in every run.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>

namespace termvik::bench {

// The folder of a sample with that many entries: one Swedish and three or four foreign words each,
// a comment in three of ten, two thirds of them in the graphical glossary. It is written when it is
// first asked for and removed at the end of the program.
const std::filesystem::path& sampleFolder(std::int64_t entries);

// An empty folder that goes with its last owner.
std::shared_ptr<const std::filesystem::path> makeScratchFolder();

// Both glossary files of a folder, the graphical one first.
std::array<std::filesystem::path, 2> glossaryFiles(const std::filesystem::path& folder);

}  // namespace termvik::bench
