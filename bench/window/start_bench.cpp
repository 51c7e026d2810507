// SPDX-License-Identifier: MIT
// From the process's start to the first painted window, on a real display. The program as it is
// shipped is held against the least Qt window; with a sample's glossaries it may add to that
// window's limit what its modules take for a load and a fill without a window, and nothing else.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "common/system/files.h"
#include "painted_window.h"
#include "sample_glossary.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

using Path = std::filesystem::path;
using Seconds = std::function<double()>;

constexpr double kLimit = 1.3;  // times the least window
constexpr std::size_t kRounds = 31;

double secondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double medianOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

double secondsToPaint(const Path& program) {
  static PaintedWindow window;
  const double seconds = secondsOf([&] { window.start(program); });
  window.end();
  return seconds;
}

void copyInto(const Path& folder, const Path& file) {
  std::filesystem::copy_file(file, folder / file.filename(),
                             std::filesystem::copy_options::overwrite_existing);
}

// The program in a folder of glossaries, as the user left it with that choice of glossary; without
// a choice, as it was installed.
Path programIn(const Path& folder, const std::string& choice = {}) {
  copyInto(folder, TERMVIK_PROGRAM);
  const Path parameters = folder / "Termvik.par";
  std::filesystem::remove(parameters);
  if (!choice.empty()) writeFile(disk(), parameters, "GLOSSARYINDEX " + choice + "\r\n");
  return folder / Path(TERMVIK_PROGRAM).filename();
}

Path shippedFolder() {
  Path folder = Path(TERMVIK_PROGRAM).parent_path() / "shipped";
  std::filesystem::create_directories(folder);
  for (const Path& file : glossaryFiles(TERMVIK_GLOSSARIES)) copyInto(folder, file);
  return folder;
}

// Starts both in turn. The program may take what `added` takes beyond the limit of the window.
void compare(benchmark::State& state, const Path& program, const Seconds& added) {
  std::vector<double> times;
  std::vector<double> passes;
  std::vector<double> ratios;
  secondsToPaint(program);  // warms the caches
  while (state.KeepRunning()) {
    while (ratios.size() < kRounds) {
      passes.push_back(secondsToPaint(TERMVIK_LEAST_WINDOW) + added() / kLimit);
      times.push_back(secondsToPaint(program));
      ratios.push_back(times.back() / passes.back());
    }
    state.SetIterationTime(medianOf(times));
  }
  state.counters["ratio"] = medianOf(ratios);
  state.counters["limit"] = kLimit;
  state.counters["time"] = medianOf(times);
  state.counters["pass"] = medianOf(passes);
}

void addShipped(const std::string& name, const std::string& choice) {
  add("start/" + name, {0}, [choice](benchmark::State& state) {
    compare(state, programIn(shippedFolder(), choice), [] { return 0.0; });
  });
}

// Both windows as a screen reader finds them.
void startHeard(benchmark::State& state) {
  constexpr const char* kReadersListen = "QT_LINUX_ACCESSIBILITY_ALWAYS_ON";
  setenv(kReadersListen, "1", 1);
  compare(state, programIn(shippedFolder(), "2"), [] { return 0.0; });
  unsetenv(kReadersListen);
}

// What the work takes in a process of its own, whose memory is as fresh as that of a program that
// has just been started.
double secondsInFreshProcess(const std::function<void()>& work) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  const pid_t process = fork();
  if (process == 0) {
    const double taken = secondsOf(work);
    _exit(write(ends[1], &taken, sizeof taken) == sizeof taken ? 0 : 1);
  }
  double seconds = 0;
  close(ends[1]);
  const bool told = read(ends[0], &seconds, sizeof seconds) == sizeof seconds;
  close(ends[0]);
  waitpid(process, nullptr, 0);
  if (!told) throw std::runtime_error("a process has not told its time");
  return seconds;
}

void startWithSample(benchmark::State& state) {
  const Path program = programIn(sampleFolder(state.range(0)), "2");
  swedish();  // what the processes have in common
  compare(state, program, [&] {
    return secondsInFreshProcess([&] { const SampleProgram loadedAndFilled(state.range(0)); });
  });
}

}  // namespace

void addBenchmarks() {
  addShipped("installed", {});
  addShipped("both", "2");
  add("start/heard", {0}, startHeard);
  add("start/sample", kSizes, startWithSample);
}

}  // namespace termvik::bench
