// SPDX-License-Identifier: MIT
// What termvik-replay prints: one JSON object a line.
#pragma once

#include <nlohmann/json.hpp>

#include "app/program.h"

namespace termvik::replay {

using Json = nlohmann::ordered_json;

Json textJson(TextView text);

// Whole measures as whole numbers, others with the fewest digits that give them back.
Json measureJson(float measure);

Json stateJson(Program& program);
Json rowsJson(Program& program, std::int32_t first, std::int32_t count);
Json controlsJson(Program& program);
Json aboutJson(const Window& box);

}  // namespace termvik::replay
