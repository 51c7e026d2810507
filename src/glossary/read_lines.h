// SPDX-License-Identifier: MIT
// The lines of one glossary file.
#pragma once

#include <filesystem>

#include "common/collation/collation.h"
#include "common/system/files.h"
#include "glossary/line_table.h"

namespace termvik {

// Can be called on any thread. After a failure the lines that were stored are there, and those that
// were counted and not stored are empty.
LineTable readLines(const Collation& collation, const Files& files,
                    const std::filesystem::path& fileName);

}  // namespace termvik
