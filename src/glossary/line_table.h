// The lines of a glossary file, and what each of them is.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "common/collation.h"
#include "common/packed_texts.h"
#include "common/text.h"

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

  // Stores a line as it stands in the file.
  void append(std::string_view bytes);

  std::size_t size() const { return lines_.size(); }
  std::int32_t upperBound() const { return static_cast<std::int32_t>(size()); }
  TextView operator[](std::int32_t line) const { return lines_[indexOf(line)]; }
  LineKind kind(std::int32_t line) const { return kinds_[indexOf(line)]; }

  // Characters of all lines.
  std::size_t characterCount() const { return lines_.characterCount(); }

 private:
  static std::size_t indexOf(std::int32_t line) { return static_cast<std::size_t>(line) - 1; }
  LineKind kindOf(TextView line) const;

  const Collation* collation_;
  std::optional<Letter> separatorLetter_;  // that the marks begin with, where that is sure
  std::optional<Letter> commentLetter_;
  PackedTexts<char16_t> lines_;
  std::vector<LineKind> kinds_;  // told once for each line: a load asks several times (bench/load)
};

}  // namespace termvik
