// The user of the Windows toolkit: real messages to the real controls.
#pragma once

#include <memory>

#include "toolkit/user.h"

namespace termvik {

std::unique_ptr<User> makeWin32User(const Collation& collation);

}  // namespace termvik
