// SPDX-License-Identifier: MIT
#include "side_by_side.h"

#include <algorithm>
#include <chrono>

namespace termvik::bench {

namespace {

constexpr std::size_t kFewestRounds = 9;
constexpr std::size_t kMostRounds = 501;
constexpr double kEnough = 0.7;  // seconds of timed work

double timeOf(const Task& task) {
  if (task.prepare) task.prepare();
  const auto start = std::chrono::steady_clock::now();
  task.work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

const Task& fasterOf(const Task& a, const Task& b) {
  std::vector<double> ratios;
  for (std::size_t i = 0; i < kFewestRounds; ++i) ratios.push_back(timeOf(a) / timeOf(b));
  return median(ratios) < 1 ? a : b;
}

void measure(benchmark::State& state, const Task& program, const Task& yardstick, Limit limit) {
  std::vector<double> times;
  std::vector<double> passes;
  std::vector<double> ratios;
  timeOf(program);  // warms the caches
  timeOf(yardstick);
  while (state.KeepRunning()) {
    double spent = 0;
    while (ratios.size() < kFewestRounds || (spent < kEnough && ratios.size() < kMostRounds)) {
      times.push_back(timeOf(program));
      passes.push_back(timeOf(yardstick) / limit.passes);
      ratios.push_back(times.back() / passes.back());
      spent += times.back() + passes.back() * limit.passes;
    }
    state.SetIterationTime(median(times));
  }
  state.counters["ratio"] = median(ratios);
  state.counters["limit"] = limit.most;
  state.counters["time"] = median(times);
  state.counters["pass"] = median(passes);
}

double limitAtLargest(const benchmark::State& state, double most) {
  return state.range(0) == kLargest ? most : Limit::kNone;
}

void add(const std::string& name, const std::vector<std::int64_t>& sizes,
         const std::function<void(benchmark::State&)>& run) {
  auto* added = benchmark::RegisterBenchmark(name.c_str(), run)->Iterations(1)->UseManualTime();
  for (const std::int64_t size : sizes) added->Arg(size);
}

}  // namespace termvik::bench
