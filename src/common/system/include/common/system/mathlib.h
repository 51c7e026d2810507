// SPDX-License-Identifier: MIT
// Small operations that several modules share.
#pragma once

#include <cstdint>

#include "common/system/text.h"

namespace termvik::Mathlib {

// The greater and the smaller of two measures; `a` when they are equal.
template <class Number>
constexpr Number maxOf(Number a, Number b) {
  return b > a ? b : a;
}
template <class Number>
constexpr Number minOf(Number a, Number b) {
  return b < a ? b : a;
}

// Scanners over a text with a position that the caller holds: the 1-based index of a character,
// from 1 to the text's length + 1, which means that the text is used up. They compare characters
// exactly; blanks are U+0020 and tab.

// Skips blanks from `pos` and returns the word after them; `pos` goes to the blank that ended the
// word, or to length + 1.
TextView nextWord(TextView text, std::int64_t& pos);

// Moves `pos` to the first character at or after it that is no blank; returns the text from there.
TextView skipBlanks(TextView text, std::int64_t& pos);

// The text from `pos` up to the first character that equals `delimiter`; `pos` goes onto it, or to
// length + 1. A delimiter that is not one character is never found.
TextView textUpTo(TextView text, std::int64_t& pos, TextView delimiter);

// The first character lies in '0' to '9'.
bool startsWithDigit(TextView text);

}  // namespace termvik::Mathlib
