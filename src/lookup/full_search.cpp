// Full search: replaces the list by one row for each entry of the chosen glossaries that holds at
// least one of up to ten terms, in a word of any language or in its comment.
#include <utility>

#include "common/mathlib.h"
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
  const LetterCounts counts = words_.letterCounts();
  std::vector<SearchTerm> terms;
  terms.reserve(words.size());
  for (const TextView word : words) terms.emplace_back(words_.collation(), word, counts);
  SearchRun search(std::move(terms));
  lstWords_.Clear();
  txtArticle_.setText({});
  visitChosenGlossaries([&](std::int32_t first, std::int32_t last) {
    for (std::int32_t i = words_.nextCandidate(search, first, last); i <= last;
         i = words_.nextCandidate(search, i + 1, last)) {
      addEntryIfSearched(i, search);
    }
  });
  moveInList(0, 0);
}

void frmGlossary::addEntryIfSearched(std::int32_t entryIndex, SearchRun& search) {
  TextView key;
  const clsWEntry& entry = words_.gEntries(entryIndex);
  if (!entry.getGlossaryWordIfSearchedFor(words_.gWordType, search, key)) return;
  lstWords_.AddItem(key);
  lstWords_.setItemData(lstWords_.NewIndex(), entryIndex);
}

}  // namespace termvik
