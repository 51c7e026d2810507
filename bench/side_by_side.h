// SPDX-License-Identifier: MIT
// Measures the program's work against a yardstick: work on the same data that nobody could do
// without. Both are done in turn in one process, so that what else the machine does meets both
// alike, and what counts is the ratio of the two times.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace termvik::bench {

struct Task {
  std::function<void()> work;
  std::function<void()> prepare = {};  // ahead of each work and not timed
};

// The program may take `most` times one pass of the yardstick.
struct Limit {
  static constexpr double kNone = 0;

  double most = kNone;  // kNone: the ratio is reported and not judged
  double passes = 1;    // how many passes the yardstick's work holds
};

// Counters that a benchmark can set. More allocations than the most are over the limit too.
inline constexpr const char* kAllocations = "allocations";
inline constexpr double kMostAllocations = 200;
inline constexpr const char* kHits = "hits";

// The one that takes less time.
const Task& fasterOf(const Task& a, const Task& b);

// Reports the median of the ratios of neighbours, and both median times.
void measure(benchmark::State& state, const Task& program, const Task& yardstick, Limit limit);

// A limit that is judged at kLargest: in a small glossary everything is over at once.
double limitAtLargest(const benchmark::State& state, double most);

// Adds a benchmark that is run once for each size.
void add(const std::string& name, const std::vector<std::int64_t>& sizes,
         const std::function<void(benchmark::State&)>& run);

// How many entries the sample glossary has in most benchmarks. The limits are judged at kLargest;
// kHuge is for the growth.
inline constexpr std::int64_t kLargest = 300000;
inline constexpr std::int64_t kHuge = 1000000;
inline const std::vector<std::int64_t> kSizes = {3000, 30000, kLargest, kHuge};

// Each executable adds its benchmarks here.
void addBenchmarks();

}  // namespace termvik::bench
