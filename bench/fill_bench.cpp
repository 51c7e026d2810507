// SPDX-License-Identifier: MIT
// Filling the list with the Swedish words of all entries and looking at its first row, against
// std::sort of the ready weights of the same words.
#include "packed_weights.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

constexpr double kLimit = 0.9;

void fill(benchmark::State& state) {
  const auto store = loadedStore(state.range(0));
  const PackedWeights weights(swedish(), swedishWords(*store));
  SampleProgram window(state.range(0));
  ListBox& list = window.list();
  const Task program{.work =
                         [&] {
                           fillList(list, *store);
                           benchmark::DoNotOptimize(list.List(0));
                         },
                     .prepare = [&] { list.Clear(); }};
  const Task sort{[&] { benchmark::DoNotOptimize(weights.sorted()); }};
  measure(state, program, sort, {.most = limitAtLargest(state, kLimit)});
}

}  // namespace

void addBenchmarks() { add("fill", kSizes, fill); }

}  // namespace termvik::bench
