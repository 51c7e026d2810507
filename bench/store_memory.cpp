// store_memory [FOLDER]: loads the glossaries of a folder, or of the largest sample, and prints how
// far the process grew beyond the empty one at its peak, beside the bytes of the files. The exit
// status is 1 when that is over the limit. Linux only: the kernel knows the peak.
#include <cstdio>
#include <exception>
#include <fstream>
#include <limits>

#include "sample_glossary.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace {

using namespace termvik;

constexpr double kLimit = 8;  // times the bytes of the files

double peakBytes() {
  constexpr double kKibi = 1024;
  std::ifstream status("/proc/self/status");
  std::string field;
  double size = std::numeric_limits<double>::quiet_NaN();
  while (status >> field && field != "VmHWM:") continue;
  status >> size;
  return size * kKibi;
}

int report(const std::filesystem::path& folder, double empty) {
  double bytes = 0;
  for (const auto& file : bench::glossaryFiles(folder)) {
    bytes += static_cast<double>(std::filesystem::file_size(file));
  }
  defWords store(bench::swedish(), folder, [](TextView) {});
  store.readGlossaries();
  const double growth = peakBytes() - empty;
  const bool within = growth <= kLimit * bytes;
  std::printf(
      "memory of %d entries: files %.0f bytes, growth %.0f bytes, ratio %.2f, limit %.0f%s\n",
      store.gToolsLast, bytes, growth, growth / bytes, kLimit, within ? "" : "  OVER");
  return within ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
  const double empty = peakBytes();
  try {
    return report(count > 1 ? arguments[1] : bench::sampleFolder(bench::kLargest), empty);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "store_memory: %s\n", error.what());
    return 2;
  }
}
