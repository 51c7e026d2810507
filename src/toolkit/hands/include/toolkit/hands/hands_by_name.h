// SPDX-License-Identifier: MIT
// The hands of every toolkit that this build has, by the toolkit's name.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/shared/hands.h"

namespace termvik {

// "memory" and, as the build has them, "qt" and "win32".
std::vector<std::string> toolkitNames();

// Null when the build has no toolkit of that name. `screen` is for memory; the others have their
// own.
std::unique_ptr<Hands> makeHands(std::string_view toolkit, const Collation& collation,
                                 ScreenSize screen);

}  // namespace termvik
