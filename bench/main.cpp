// SPDX-License-Identifier: MIT
// Runs the benchmarks of one executable and prints a line for each. The exit status is 1 when one
// of them is over its limit.
#include <cstdio>
#include <set>
#include <string>

#include "side_by_side.h"

namespace {

using namespace termvik::bench;

// Of the size that is only for the growth of the figures; it is run when a filter asks for it.
constexpr const char* kAllButHuge = "-/1000000/";

const std::set<std::string> kColumns = {"time", "pass", "ratio", "limit"};

class LineReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override {
    std::printf("%-30s%8s%11s%11s%8s%6s\n", "benchmark", "size", "time ms", "pass ms", "ratio",
                "limit");
    return true;
  }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) report(run);
    std::fflush(stdout);
  }

  int overCount() const { return over_; }

 private:
  void report(const Run& run) {
    const auto value = [&run](const char* name) {
      const auto counter = run.counters.find(name);
      return counter == run.counters.end() ? 0.0 : counter->second.value;
    };
    const double limit = value("limit");
    const bool judged = limit != Limit::kNone;
    std::printf("%-30s%8s%11.4f%11.4f%8.2f", run.run_name.function_name.c_str(),
                run.run_name.args.c_str(), 1e3 * value("time"), 1e3 * value("pass"),
                value("ratio"));
    if (judged) {
      std::printf("%6.2g", limit);
    } else {
      std::printf("%6s", "-");
    }
    for (const auto& [name, counter] : run.counters) {
      if (kColumns.count(name) == 0) std::printf("  %s %.6g", name.c_str(), counter.value);
    }
    const bool over = (judged && value("ratio") > limit) || value(kAllocations) > kMostAllocations;
    std::puts(over ? "  OVER" : "");
    over_ += over ? 1 : 0;
  }

  int over_ = 0;
};

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 2;
  if (benchmark::GetBenchmarkFilter().empty()) benchmark::SetBenchmarkFilter(kAllButHuge);
  addBenchmarks();
  LineReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::printf("over their limit: %d\n", reporter.overCount());
  return reporter.overCount() == 0 ? 0 : 1;
}
