// SPDX-License-Identifier: MIT
// The lines of a glossary file, and what each of them is.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "common/collation/collation.h"
#include "common/system/large_vector.h"
#include "common/system/text.h"

namespace termvik {

// What a line is, whatever stands around it. The first that holds counts.
enum class LineKind : std::uint8_t {
  Separator,    // ends a block: its first three characters equal "---"
  CommentHead,  // its first two characters equal "C:"
  Word,         // its second character equals ":"; the first is the word type
  Empty,        // equals the empty text
  Other
};

// Lines count from 1. They have lost their trailing blanks.
class LineTable {
 public:
  explicit LineTable(const Collation& collation);

  // Makes room for `lines` lines that come from `bytes` bytes in all.
  void reserve(std::size_t lines, std::size_t bytes);

  void clear();

  // Stores a line as it stands in the file, or one whose characters are known.
  void append(std::string_view bytes);
  void appendDecoded(TextView line);

  std::size_t size() const { return ends_.size(); }
  std::int32_t upperBound() const { return static_cast<std::int32_t>(size()); }
  TextView operator[](std::int32_t line) const;
  LineKind kind(std::int32_t line) const { return kinds_[indexOf(line)]; }

  // What a line would be that has lost its trailing blanks.
  LineKind kindOf(TextView line) const;

  // All lines in one piece, each closed by CR LF. It stays where it is once all lines are stored.
  TextView characters() const { return {characters_.data(), characters_.size()}; }

 private:
  static std::size_t indexOf(std::int32_t line) { return static_cast<std::size_t>(line) - 1; }
  void endLine(std::size_t begin);

  const Collation* collation_;
  std::optional<Letter> separatorLetter_;  // that the marks begin with, where that is sure
  std::optional<Letter> commentLetter_;
  LargeVector<char16_t> characters_;
  LargeVector<std::uint32_t> ends_;  // of each line
  LargeVector<LineKind> kinds_;  // told once for each line: a load asks several times (bench/load)
};

}  // namespace termvik
