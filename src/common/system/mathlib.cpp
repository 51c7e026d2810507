// SPDX-License-Identifier: MIT
#include "common/system/mathlib.h"

#include <algorithm>

namespace termvik::Mathlib {

namespace {

constexpr TextView kBlanks = u" \t";

// The 0-based index for a position, never beyond the end of the text.
std::size_t indexOf(TextView text, std::int64_t pos) {
  return std::min(static_cast<std::size_t>(pos - 1), text.size());
}

std::size_t orEnd(std::size_t found, TextView text) { return std::min(found, text.size()); }

std::int64_t positionOf(std::size_t index) { return static_cast<std::int64_t>(index) + 1; }

bool isUsedUp(TextView text, std::int64_t pos) { return indexOf(text, pos) == text.size(); }

}  // namespace

TextView nextWord(TextView text, std::int64_t& pos) {
  if (isUsedUp(text, pos)) return {};
  const std::size_t begin = orEnd(text.find_first_not_of(kBlanks, indexOf(text, pos)), text);
  const std::size_t end = orEnd(text.find_first_of(kBlanks, begin), text);
  pos = positionOf(end);
  return text.substr(begin, end - begin);
}

TextView skipBlanks(TextView text, std::int64_t& pos) {
  if (isUsedUp(text, pos)) return {};
  const std::size_t begin = orEnd(text.find_first_not_of(kBlanks, indexOf(text, pos)), text);
  pos = positionOf(begin);
  return text.substr(begin);
}

TextView textUpTo(TextView text, std::int64_t& pos, TextView delimiter) {
  if (isUsedUp(text, pos)) return {};
  const std::size_t begin = indexOf(text, pos);
  const std::size_t end =
      delimiter.size() == 1 ? orEnd(text.find(delimiter.front(), begin), text) : text.size();
  pos = positionOf(end);
  return text.substr(begin, end - begin);
}

bool startsWithDigit(TextView text) {
  return !text.empty() && text.front() >= u'0' && text.front() <= u'9';
}

}  // namespace termvik::Mathlib
