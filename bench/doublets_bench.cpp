// Marking the doublets of a filled list, as the program does behind each filling, against one plain
// pass over the rows. Reported, not judged.
#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

constexpr TextView kMark = u" ------DUBBLETT-";

void markDoublets(ListBox& list) {
  for (std::int32_t row = 0; row < list.ListCount();) {
    const std::int32_t next = list.rows().behindEqual(row);
    for (const bool several = next > row + 1; row < next; ++row) {
      if (several) list.setList(row, Text(list.List(row)).append(kMark));
    }
  }
}

void mark(benchmark::State& state) {
  const auto store = loadedStore(state.range(0));
  SampleProgram window(state.range(0));
  ListBox& list = window.list();
  const Task program{.work = [&] { markDoublets(list); },
                     .prepare =
                         [&] {
                           list.Clear();
                           fillList(list, *store);
                         }};
  measure(state, program, {[&] { passOver(list); }}, {});
}

}  // namespace

void addBenchmarks() { add("doublets", kSizes, mark); }

}  // namespace termvik::bench
