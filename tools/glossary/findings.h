// SPDX-License-Identifier: MIT
// What there is to say of the lines of a glossary file.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "messages.h"

namespace termvik::tool {

// The kinds of findings; `code` stands in brackets after each.
struct Kind {
  std::string_view code;
  Severity severity = Severity::Error;
};

namespace kinds {

inline constexpr Kind kEncoding{"encoding"};
inline constexpr Kind kLineEnds{"line-ends"};
inline constexpr Kind kNoEntries{"no-entries"};
inline constexpr Kind kLostLetter{"lost-letter"};
inline constexpr Kind kLostLine{"lost-line"};
inline constexpr Kind kLostBlock{"lost-block"};
inline constexpr Kind kLostComment{"lost-comment"};
inline constexpr Kind kWordInComment{"word-in-comment", Severity::Warning};
inline constexpr Kind kWordType{"word-type", Severity::Warning};
inline constexpr Kind kEmptyWord{"empty-word", Severity::Warning};
inline constexpr Kind kSameWord{"same-word", Severity::Warning};
inline constexpr Kind kControl{"control", Severity::Warning};
inline constexpr Kind kBlanks{"blanks", Severity::Warning};
inline constexpr Kind kFirstLine{"first-line", Severity::Warning};
inline constexpr Kind kDoublet{"doublet", Severity::Note};
inline constexpr Kind kMissing{"missing", Severity::Note};

}  // namespace kinds

struct Finding {
  std::uint32_t line = 0;
  const Kind* kind = nullptr;
  std::string text;
};

using Findings = std::vector<Finding>;

// One line a finding, in the order of the lines.
void print(const std::string& name, Findings& findings, std::ostream& out);

std::size_t countOf(const Findings& findings, Severity severity);

}  // namespace termvik::tool
