// SPDX-License-Identifier: MIT
// The most memory that this process has had so far. Linux only: the kernel knows it.
#pragma once

namespace termvik::bench {

double peakBytes();

}  // namespace termvik::bench
