// SPDX-License-Identifier: MIT
#include "read_lines.h"

#include "common/system/line_reader.h"

namespace termvik {

LineTable readLines(const Collation& collation, const Files& files,
                    const std::filesystem::path& fileName) {
  LineTable lines(collation);
  FileMeasure measure;
  if (!measureFile(files, fileName, measure)) return lines;
  lines.reserve(measure.lines, measure.bytes);
  LineReader reader(files, fileName);
  std::string_view bytes;
  // A file that has grown since it was measured gives no more lines.
  while (reader.next(bytes) && lines.size() < measure.lines) lines.append(bytes);
  while (lines.size() < measure.lines) lines.append({});
  return lines;
}

}  // namespace termvik
