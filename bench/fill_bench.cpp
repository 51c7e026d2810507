// Filling the list with the Swedish words of all entries against making sort keys of the same words
// and sorting them.
#include <algorithm>
#include <cstring>

#include <unicode/ucol.h>

#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

constexpr double kLimit = 4;
constexpr std::int32_t kLongestKey = 256;

struct CollatorCloser {
  void operator()(UCollator* collator) const { ucol_close(collator); }
};
using PlainCollator = std::unique_ptr<UCollator, CollatorCloser>;

PlainCollator openCollator() {
  UErrorCode error = U_ZERO_ERROR;
  PlainCollator collator(ucol_open("sv", &error));
  ucol_setStrength(collator.get(), UCOL_SECONDARY);
  return collator;
}

// Keys lie side by side, and what is sorted is their places: that is faster than to sort strings.
void sortByKeys(const UCollator* collator, const std::vector<TextView>& words,
                std::vector<std::uint8_t>& keys, std::vector<std::size_t>& places) {
  std::size_t used = 0;
  for (const TextView word : words) {
    places.push_back(used);
    used += static_cast<std::size_t>(ucol_getSortKey(
        collator, word.data(), static_cast<std::int32_t>(word.size()), &keys[used], kLongestKey));
  }
  const auto* first = reinterpret_cast<const char*>(keys.data());
  std::sort(places.begin(), places.end(), [first](std::size_t a, std::size_t b) {
    return std::strcmp(first + a, first + b) < 0;
  });
}

void fill(benchmark::State& state) {
  const auto store = loadedStore(state.range(0));
  std::vector<TextView> words;
  for (std::int32_t i = store->gGraphFirst; i <= store->gToolsLast; ++i) {
    const clsWEntry& entry = store->gEntries(i);
    if (entry.entryWordCount() > 0) words.push_back(entry.entryWord(1));  // the Swedish one
  }
  SampleProgram window(state.range(0));
  ListBox& list = window.list();
  const Task program{.work = [&] { fillList(list, *store); }, .prepare = [&] { list.Clear(); }};

  const PlainCollator collator = openCollator();
  std::vector<std::uint8_t> keys(words.size() * kLongestKey);
  std::vector<std::size_t> places;
  const Task sort{.work = [&] { sortByKeys(collator.get(), words, keys, places); },
                  .prepare = [&] { places.clear(); }};
  measure(state, program, sort, {.most = kLimit});
}

}  // namespace

void addBenchmarks() { add("fill", kSizes, fill); }

}  // namespace termvik::bench
