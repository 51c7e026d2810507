// SPDX-License-Identifier: MIT
// Marking the doublets of a filled list, as the program does after each filling, against one pass
// over the sorted weights of the same words, each held against its neighbour.
#include "lookup/doublets.h"
#include "packed_weights.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

constexpr double kLimit = 1.5;
void mark(benchmark::State& state) {
  const auto store = loadedStore(state.range(0));
  SampleProgram window(state.range(0));
  ListBox& list = window.list();
  const PackedWeights weights(swedish(), swedishWords(*store));
  const std::vector<const char*> places = weights.sorted();
  const auto setText = [&](std::int32_t row, TextView text) { list.setList(row, text); };
  const Task program{.work = [&] { markDoublets(list.rows(), setText); },
                     .prepare =
                         [&] {
                           list.Clear();
                           fillList(list, *store);
                           benchmark::DoNotOptimize(list.List(0));  // brings it into order
                         }};
  const Task neighbours{[&] { benchmark::DoNotOptimize(PackedWeights::countDoublets(places)); }};
  measure(state, program, neighbours, {.most = limitAtLargest(state, kLimit)});
  state.counters[kHits] = static_cast<double>(PackedWeights::countDoublets(places));
}

}  // namespace

void addBenchmarks() { add("doublets", kSizes, mark); }

}  // namespace termvik::bench
