// Full search: replaces the list by one row for each entry of the chosen glossaries that holds at
// least one of up to ten terms, in a word of any language or in its comment.
#include "glossary/full_search.h"

#include "common/system/mathlib.h"
#include "lookup/frm_glossary.h"

namespace termvik {

namespace {

constexpr std::size_t kMostTerms = 10;
constexpr TextView kQuote = u"\"";

// Reads the word or phrase at or behind `pos` and moves `pos` behind it.
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

void frmGlossary::cmdSearchAgain_Click() {
  const Text searchText = txtSearch_.text();
  const std::vector<TextView> words = splitSearchWords(words_.collation(), searchText);
  if (words.empty()) return;
  lstWords_.Clear();
  txtArticle_.setText({});
  visitChosenGlossaries([&](std::int32_t first, std::int32_t last) {
    visitHits(words_, first, last, words,
              [this](std::int32_t entry, TextView word) { lstWords_.AddItem(word, entry); });
  });
  leaveRoom();
  moveInList(0, 0);
}

}  // namespace termvik
