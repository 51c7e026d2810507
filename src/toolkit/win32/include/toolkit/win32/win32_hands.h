// SPDX-License-Identifier: MIT
// Hands on the Windows toolkit: real messages to the real controls.
#pragma once

#include <memory>

#include "toolkit/shared/hands.h"

namespace termvik {

std::unique_ptr<Hands> makeWin32Hands(const Collation& collation);

}  // namespace termvik
