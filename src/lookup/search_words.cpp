// SPDX-License-Identifier: MIT
#include "lookup/search_words.h"

#include "common/system/mathlib.h"

namespace termvik {

namespace {

constexpr std::size_t kMostTerms = 10;
constexpr TextView kQuote = u"\"";

// Reads the word or phrase that begins at `pos` or after it, and moves `pos` past it.
TextView nextTerm(TextView text, std::int64_t& pos) {
  Mathlib::skipBlanks(text, pos);
  const std::int64_t wordStart = pos;
  const TextView word = Mathlib::nextWord(text, pos);
  if (!word.starts_with(kQuote)) return word;
  pos = wordStart + 1;
  const TextView phrase = Mathlib::textUpTo(text, pos, kQuote);
  ++pos;  // over the closing quote
  return phrase;
}

}  // namespace

std::vector<TextView> splitSearchWords(const Collation& collation, TextView searchText) {
  std::vector<TextView> terms;
  const auto length = static_cast<std::int64_t>(searchText.size());
  // A last single character is not read: a text of one letter would find nearly every entry.
  for (std::int64_t pos = 1; pos < length;) {
    const TextView term = nextTerm(searchText, pos);
    if (terms.size() < kMostTerms && !collation.isEmpty(term)) terms.push_back(term);
  }
  return terms;
}

}  // namespace termvik
