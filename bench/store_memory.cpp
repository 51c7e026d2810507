// SPDX-License-Identifier: MIT
// store_memory [ENTRIES]: starts the program on a sample with that many entries, with both
// glossaries in the list, and prints how far the process grew beyond the empty one at its peak,
// beside the bytes of the files. The exit status is 1 when that is over the limit, which is judged
// from the largest sample on.
#include <cstdio>
#include <exception>
#include <string>

#include "peak_memory.h"
#include "sample_glossary.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace {

using namespace termvik;

constexpr double kLimit = 6;  // times the bytes of the files

int report(std::int64_t entries) {
  double bytes = 0;
  for (const auto& file : bench::glossaryFiles(bench::sampleFolder(entries))) {
    bytes += static_cast<double>(std::filesystem::file_size(file));
  }
  const double empty = bench::peakBytes();
  const bench::SampleProgram program(entries);
  const double growth = bench::peakBytes() - empty;
  // In a small glossary the memory that any program takes is most of it.
  const bool within = entries < bench::kLargest || growth <= kLimit * bytes;
  std::printf(
      "memory of %d entries: files %.0f bytes, growth %.0f bytes, ratio %.2f, limit %.0f%s\n",
      program.list().ListCount(), bytes, growth, growth / bytes, kLimit, within ? "" : "  OVER");
  return within ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    return report(count > 1 ? std::stoll(arguments[1]) : bench::kLargest);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "store_memory: %s\n", error.what());
    return 2;
  }
}
