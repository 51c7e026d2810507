#include "glossary/entry_texts.h"

#include <algorithm>

namespace termvik {

void EntryTexts::clear() { *this = EntryTexts(*collation_); }

void EntryTexts::reserve(std::size_t texts, std::size_t characters) {
  texts_.reserve(texts, characters);
  types_.reserve(texts);
}

void EntryTexts::addWord(TextView word, char16_t wordType) {
  texts_.append(word);
  types_.push_back(wordType);
  folded_.reset();
}

void EntryTexts::addComment(TextView comment) { addWord(comment, u'\0'); }

const FoldedTexts& EntryTexts::folded() const {
  if (folded_) return *folded_;
  folded_.emplace();
  folded_->letters.reserve(size(), texts_.characterCount() + size());
  std::vector<Letter> letters;
  for (std::size_t i = 0; i < size(); ++i) {
    letters.clear();
    if (!collation_->letters().append(text(i), letters)) folded_->unknown.push_back(i);
    for (const Letter letter : letters) ++folded_->counts[letter];
    letters.push_back(kNoLetter);
    folded_->letters.append({letters.data(), letters.size()});
  }
  return *folded_;
}

LettersView EntryTexts::lettersOf(const FoldedTexts& folded, std::size_t index) const {
  LettersView letters = folded.letters[index];
  letters.remove_suffix(1);
  return letters;
}

std::optional<std::size_t> EntryTexts::firstWith(const SearchTerm& term, std::size_t first,
                                                 std::size_t end) const {
  const FoldedTexts& all = folded();
  const auto unknown = std::lower_bound(all.unknown.begin(), all.unknown.end(), first);
  const bool allKnown = unknown == all.unknown.end() || *unknown >= end;
  if (!allKnown) {
    for (std::size_t i = first; i < end; ++i) {
      if (term.occursIn(text(i))) return i;
    }
    return std::nullopt;
  }
  std::size_t index = first;
  while (index < end) {
    const std::size_t begin = all.letters.beginOf(index);
    const LettersView rest(all.letters.data() + begin, all.letters.beginOf(end) - begin);
    const std::size_t hit = term.find(rest);
    if (hit == SearchTerm::kNotFound) return std::nullopt;
    while (all.letters.beginOf(index + 1) <= begin + hit) ++index;
    if (term.occursIn(text(index), lettersOf(all, index))) return index;
    ++index;
  }
  return std::nullopt;
}

const LetterCounts& EntryTexts::letterCounts() const { return folded().counts; }

}  // namespace termvik
