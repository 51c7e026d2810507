// SPDX-License-Identifier: MIT
// Hands on the toolkit without a screen.
#pragma once

#include <memory>

#include "toolkit/shared/hands.h"

namespace termvik {

std::unique_ptr<Hands> makeMemoryHands(const Collation& collation, ScreenSize screen);

}  // namespace termvik
