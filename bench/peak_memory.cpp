// SPDX-License-Identifier: MIT
#include "peak_memory.h"

#include <fstream>
#include <limits>
#include <string>

namespace termvik::bench {

double peakBytes() {
  constexpr double kKibi = 1024;
  std::ifstream status("/proc/self/status");
  std::string field;
  double size = std::numeric_limits<double>::quiet_NaN();
  while (status >> field && field != "VmHWM:") continue;
  status >> size;
  return size * kKibi;
}

}  // namespace termvik::bench
