// SPDX-License-Identifier: MIT
// The tool, called by the entry point that the platform asks for.
#pragma once

#include <filesystem>
#include <vector>

#include "player.h"

namespace termvik::replay {

// What stands on the command line after the program's name. Paths hold every text that it can
// have.
using Arguments = std::vector<std::filesystem::path>;

// The program's exit status. Standard input and output carry bytes: no line end is changed.
// `counted` is what `--handles` prints, where there is something to count.
int runTool(const Arguments& arguments, const Player::Counted& counted = {});

}  // namespace termvik::replay
