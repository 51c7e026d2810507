// SPDX-License-Identifier: MIT
// glossary_tool_memory [ENTRIES]: prints for each run of termvik-glossary over a sample with that
// many entries how far the process grew at its peak, beside the bytes of the input. The exit status
// is 1 when one is over its limit, which is judged from the largest sample on.
#include <cstdio>
#include <exception>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "peak_memory.h"
#include "side_by_side.h"
#include "tool_runs.h"

namespace {

using namespace termvik::bench;

int report(const ToolRun& toolRun, bool judged) {
  const auto bytes = static_cast<double>(std::filesystem::file_size(toolRun.input));
  const double empty = peakBytes();
  run(toolRun);
  const double growth = peakBytes() - empty;
  const bool within = !judged || growth <= kMemoryLimit * bytes;
  std::printf("memory of %-14s input %.0f bytes, growth %.0f bytes, ratio %.2f, limit %.0f%s\n",
              toolRun.name.c_str(), bytes, growth, growth / bytes, kMemoryLimit,
              within ? "" : "  OVER");
  std::fflush(stdout);
  return within ? 0 : 1;
}

// In a process of its own: what one run leaves behind is not there for the next.
int reportApart(const ToolRun& toolRun, bool judged) {
  const pid_t child = fork();
  if (child == 0) _exit(report(toolRun, judged));
  int status = 0;
  waitpid(child, &status, 0);
  return status == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const std::int64_t entries = count > 1 ? std::stoll(arguments[1]) : kLargest;
    int over = 0;
    for (const ToolRun& toolRun : toolRuns(entries))
      over += reportApart(toolRun, entries >= kLargest);
    return over == 0 ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "glossary_tool_memory: %s\n", error.what());
    return 2;
  }
}
