// SPDX-License-Identifier: MIT
#include "tool_runs.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

#include "sample_glossary.h"
#include "tool.h"

namespace termvik::bench {

namespace {

namespace fs = std::filesystem;

// Both glossaries of the sample in one file; the second without its first line.
fs::path joinedSample(const fs::path& folder) {
  fs::path joined = folder / "sample.txt";
  std::ofstream out(joined, std::ios::binary);
  std::string firstLine;
  for (const fs::path& file : glossaryFiles(folder)) {
    std::ifstream in(file, std::ios::binary);
    if (!firstLine.empty()) std::getline(in, firstLine);
    firstLine = "is taken";
    out << in.rdbuf();
  }
  if (!out.flush()) throw std::runtime_error("cannot write " + joined.string());
  return joined;
}

ToolRun converting(const std::string& name, const fs::path& from, const fs::path& to,
                   double limit) {
  return {name, {"convert", "--force", from.string(), to.string()}, from, to, limit};
}

std::vector<ToolRun> makeRuns(const fs::path& folder) {
  const fs::path glossary = joinedSample(folder);
  std::vector<ToolRun> runs{{"tool/check", {"check", glossary.string()}, glossary, {}}};
  for (const std::string format : {"csv", "tsv", "tbx"}) {
    const double limit = format == "tbx" ? kTbxLimit : kTableLimit;
    const fs::path file = folder / ("sample." + format);
    runs.push_back(converting("tool/to_" + format, glossary, file, limit));
    runs.push_back(converting("tool/from_" + format, file, folder / "back.txt", limit));
  }
  return runs;
}

}  // namespace

const std::vector<ToolRun>& toolRuns(std::int64_t entries) {
  static std::map<std::int64_t, std::vector<ToolRun>> all;
  std::vector<ToolRun>& runs = all[entries];
  if (runs.empty()) runs = makeRuns(sampleFolder(entries));
  return runs;
}

void makeInput(const std::vector<ToolRun>& runs, const ToolRun& toolRun) {
  if (fs::exists(toolRun.input)) return;
  const auto writes = [&](const ToolRun& other) { return other.output == toolRun.input; };
  run(*std::find_if(runs.begin(), runs.end(), writes));
}

void run(const ToolRun& toolRun) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  tool::Streams streams{.in = in, .out = out, .err = err};
  if (tool::runTool(toolRun.arguments, streams) == 2) throw std::runtime_error(err.str());
}

}  // namespace termvik::bench
