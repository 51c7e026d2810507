// SPDX-License-Identifier: MIT
// A key stroke: one edit of the search text, with all that the program does before the next one,
// against one pass over the ready weights of the list's rows.
#include <cstdlib>
#include <map>
#include <new>

#include "packed_weights.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace {

std::int64_t allocations = 0;  // of the whole process, so far

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  void* const memory = std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace termvik::bench {

namespace {

constexpr double kLimit = 0.8;
constexpr double kLimitOfNoRow = 1;  // of letters that no row has

struct Typed {
  explicit Typed(std::int64_t rows)
      : program(rows), weights(swedish(), swedishWords(*loadedStore(rows))) {
    weights.sort();
  }

  SampleProgram program;
  PackedWeights weights;
};

Typed& typedOf(std::int64_t rows) {
  static std::map<std::int64_t, Typed> all;
  return all.try_emplace(rows, rows).first->second;
}

// Each stroke comes after an untimed one that empties the box, so that each is a real edit.
void keyStroke(benchmark::State& state, const Text& text, double limit) {
  Typed& typed = typedOf(state.range(0));
  const std::string wanted = PackedWeights::weightsOf(swedish(), text);
  const Task stroke{.work = [&] { typed.program.type(text); },
                    .prepare = [&] { typed.program.type({}); }};
  const Task walk{[&] { benchmark::DoNotOptimize(typed.weights.countFrom(wanted)); }};
  measure(state, stroke, walk, {.most = limitAtLargest(state, limit)});
  stroke.prepare();
  const std::int64_t before = allocations;
  stroke.work();
  state.counters[kAllocations] = static_cast<double>(allocations - before);
}

void addText(const std::string& name, const Text& text, double limit = kLimit) {
  add("key_stroke/" + name, kSizes,
      [=](benchmark::State& state) { keyStroke(state, text, limit); });
}

// The beginning of the row at `part` of the whole list.
void addRow(const std::string& name, double part, std::size_t length) {
  add("key_stroke/" + name, kSizes, [=](benchmark::State& state) {
    const ListBox& list = typedOf(state.range(0)).program.list();
    const auto row = static_cast<std::int32_t>(part * (list.ListCount() - 1));
    keyStroke(state, Text(list.List(row).substr(0, length)), kLimit);
  });
}

}  // namespace

void addBenchmarks() {
  addRow("last_row", 1, Text::npos);
  addRow("eight_deep", 0.95, 8);
  addText("big_run", u"s");
  addText("last_run", u"ö");
  addText("accent", u"vén");
  addText("accent_in_big_run", u"š");
  addText("sharp_s", u"ß");
  addText("ligature", u"stræt");
  addText("greek", u"λέξη", kLimitOfNoRow);
  addText("long", Text(100, u'ö'));
}

}  // namespace termvik::bench
