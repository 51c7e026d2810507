// SPDX-License-Identifier: MIT
// How much of a very long text a window shows.
#pragma once

#include <cstddef>
#include <functional>

#include "common/system/text.h"

namespace termvik {

// Of a row. No list is wide enough to show more; a line of megabytes must not be measured.
inline constexpr std::size_t kMostShownOfRow = 1000;

// A line of a text box is laid out whole, and one of megabytes would take minutes: lines longer
// than any that a person writes are shown in pieces.
inline constexpr std::size_t kLongestLine = 4000;

// The longest beginning of a message that `fits` the screen with its box around it, closed by an
// ellipsis where the message goes on: the button must stay in reach.
inline constexpr TextView kEllipsis = u"…";
Text messageThatFits(TextView prompt, const std::function<bool(TextView text)>& fits);

}  // namespace termvik
