// SPDX-License-Identifier: MIT
// The lines of both glossary files, read while the window system gets ready.
#pragma once

#include <filesystem>
#include <future>

#include "common/collation/collation.h"
#include "common/system/files.h"
#include "glossary/line_table.h"

namespace termvik {

// Lines to come; a future without a state where none are read ahead. Whoever lets one go waits for
// its reading to end.
struct LinesAhead {
  std::future<LineTable> graph;
  std::future<LineTable> tools;
};

// Begins to read both files of `folder`, each on a thread of its own. Where one of them is missing
// none is read: the user is told, and may bring both before going on. All that is handed in but the
// folder must outlive the reading.
LinesAhead readAhead(const Collation& collation, const Files& files,
                     const std::filesystem::path& folder);

}  // namespace termvik
