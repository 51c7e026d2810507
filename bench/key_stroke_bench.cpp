// A key stroke: one edit of the search text, with all that the program does before the next one,
// against one plain pass over the rows of the list.
#include <cstdlib>
#include <map>
#include <new>

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

constexpr double kLimit = 2;
constexpr std::int64_t kJudged = 32000;  // rows

SampleProgram& programOf(std::int64_t rows) {
  static std::map<std::int64_t, SampleProgram> programs;
  return programs.try_emplace(rows, rows).first->second;
}

// Each stroke comes behind an untimed one that empties the box, so that each is a real edit.
void keyStroke(benchmark::State& state, const Text& text) {
  SampleProgram& program = programOf(state.range(0));
  const Task stroke{.work = [&] { program.type(text); }, .prepare = [&] { program.type({}); }};
  measure(state, stroke, {[&] { passOver(program.list()); }},
          {.most = state.range(0) == kJudged ? kLimit : Limit::kNone});
  stroke.prepare();
  const std::int64_t before = allocations;
  stroke.work();
  state.counters[kAllocations] = static_cast<double>(allocations - before);
}

void addText(const std::string& name, const Text& text) {
  add("key_stroke/" + name, {kJudged, kLargest},
      [text](benchmark::State& state) { keyStroke(state, text); });
}

// The beginning of the row at `part` of the whole list.
void addRow(const std::string& name, double part, std::size_t length) {
  add("key_stroke/" + name, {kJudged, kLargest}, [=](benchmark::State& state) {
    const ListBox& list = programOf(state.range(0)).list();
    const auto row = static_cast<std::int32_t>(part * (list.ListCount() - 1));
    keyStroke(state, Text(list.List(row).substr(0, length)));
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
  addText("greek", u"λέξη");
  addText("long", Text(100, u'ö'));
}

}  // namespace termvik::bench
