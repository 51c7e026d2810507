// SPDX-License-Identifier: MIT
#include "glossary/lines_ahead.h"

#include "glossary/def_words.h"
#include "read_lines.h"

namespace termvik {

LinesAhead readAhead(const Collation& collation, const Files& files,
                     const std::filesystem::path& folder) {
  const std::filesystem::path graph = fileIn(folder, defWords::kFileNames[0]);
  const std::filesystem::path tools = fileIn(folder, defWords::kFileNames[1]);
  if (!fileExists(graph) || !fileExists(tools)) return {};
  const auto begin = [&](const std::filesystem::path& fileName) {
    return std::async(
        [&collation, &files, fileName] { return readLines(collation, files, fileName); });
  };
  return {.graph = begin(graph), .tools = begin(tools)};
}

}  // namespace termvik
