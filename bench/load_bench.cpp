// Loading both glossaries against a plain read of the same bytes. The store reads each file twice,
// first to measure it, and so does the yardstick.
#include "common/files.h"
#include "sample_glossary.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

// Guards against relapse: a little above what was measured.
constexpr double kLimit = 40;

constexpr std::size_t kPiece = 1U << 16U;
constexpr int kReadings = 2;

void readPlainly(const std::filesystem::path& path, std::vector<char>& buffer) {
  const File file = openToRead(path);
  while (std::fread(buffer.data(), 1, buffer.size(), file.get()) > 0) {
    benchmark::DoNotOptimize(buffer.data());
  }
}

void load(benchmark::State& state) {
  const std::filesystem::path& folder = sampleFolder(state.range(0));
  std::unique_ptr<defWords> store;
  std::vector<char> buffer(kPiece);
  const Task program{.work = [&] { store->readGlossaries(); },
                     .prepare =
                         [&] {
                           store.reset();
                           store = std::make_unique<defWords>(swedish(), folder, [](TextView) {});
                         }};
  const Task plainRead{.work = [&] {
    for (int reading = 0; reading < kReadings; ++reading) {
      for (const auto& file : glossaryFiles(folder)) readPlainly(file, buffer);
    }
  }};
  measure(state, program, plainRead, {.most = kLimit});
}

}  // namespace

void addBenchmarks() { add("load", kSizes, load); }

}  // namespace termvik::bench
