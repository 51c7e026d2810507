// SPDX-License-Identifier: MIT
// The columns of a table: which of them hold words of a language or the comment.
#pragma once

#include <optional>
#include <vector>

#include "common/collation/collation.h"
#include "common/system/text.h"
#include "formats.h"

namespace termvik::tool {

// What a name stands for, such as `S`, `en-GB` or `Kommentar`; nothing for another name.
std::optional<Column> columnNamed(const Collation& collation, TextView name);

// A column that is used stands twice.
bool anyTwice(const std::vector<Column>& columns);

// Some column is used.
bool anyUsed(const std::vector<Column>& columns);

// The columns of a list such as `S,E,_,C`; nothing when it is none.
std::optional<std::vector<Column>> columnsOfList(const Collation& collation, TextView list);

}  // namespace termvik::tool
