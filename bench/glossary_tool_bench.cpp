// SPDX-License-Identifier: MIT
// termvik-glossary, from its arguments to the file that it writes, against the program's own load
// of the same entries.
#include <memory>

#include "sample_glossary.h"
#include "sample_program.h"
#include "side_by_side.h"
#include "tool_runs.h"

namespace termvik::bench {

namespace {

void runTool(benchmark::State& state, std::size_t index) {
  const std::vector<ToolRun>& runs = toolRuns(state.range(0));
  const ToolRun& toolRun = runs.at(index);
  makeInput(runs, toolRun);
  std::unique_ptr<defWords> store;
  const Task load{.work = [&] { store->readGlossaries(); },
                  .prepare =
                      [&] {
                        store = std::make_unique<defWords>(swedish(), sampleFolder(state.range(0)),
                                                           [](TextView) {});
                      }};
  measure(state, {.work = [&] { run(toolRun); }}, load, {.most = toolRun.limit});
}

}  // namespace

void addBenchmarks() {
  const std::vector<ToolRun>& runs = toolRuns(kLargest);
  for (std::size_t i = 0; i < runs.size(); ++i) {
    add(runs[i].name, {kLargest}, [i](benchmark::State& state) { runTool(state, i); });
  }
}

}  // namespace termvik::bench
