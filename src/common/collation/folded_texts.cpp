// SPDX-License-Identifier: MIT
#include "common/collation/folded_texts.h"

#include <algorithm>
#include <cstring>

#include "common/system/partition.h"
#include "find_letters.h"
#include "letters.h"

namespace termvik {

namespace {

// One letter in so many is counted.
constexpr std::size_t kCounted = 251;

// By character: its letter; kNoLetter where it is not one letter.
std::vector<Letter> singleLetters(const Letters& letters) {
  std::vector<Letter> single(Letters::kCharacterCount, kNoLetter);
  for (std::size_t i = 0; i < single.size(); ++i) {
    const CharacterLetters& character = letters.of(static_cast<char16_t>(i));
    if (character.count == 1) single[i] = character.letters[0];
  }
  return single;
}

}  // namespace

// Characters that are not one letter are few. A pass without a branch and another that looks for
// them, over a block that stays in the processor's nearest cache, take a third of the time of one
// pass that tells them apart (bench/full_search).
FoldedTexts::FoldedTexts(const Collation& collation, TextView characters,
                         const LargeVector<TextRange>& texts)
    : collation_(&collation), characters_(characters), texts_(&texts), letters_(characters.size()) {
  constexpr std::size_t kBlock = 1U << 14U;
  const std::vector<Letter> single = singleLetters(collation.letters());
  const auto letterOf = [table = single.data()](char16_t character) { return table[character]; };
  std::size_t text = 0;
  for (std::size_t begin = 0; begin < characters.size(); begin += kBlock) {
    const TextView block = characters.substr(begin, kBlock);
    std::transform(block.begin(), block.end(), letters_.data() + begin, letterOf);
    for (std::size_t i = 0; i < block.size(); i += kCounted) ++counts_.at(letters_[begin + i]);
    spellOthers(begin, begin + block.size(), text);
  }
}

// Spells the texts from `text` on that have a character between two places that is not one letter.
void FoldedTexts::spellOthers(std::size_t begin, std::size_t end, std::size_t& text) {
  const Letter* const letters = letters_.data();
  while (text < size() && (*texts_)[text].begin < end) {
    begin = std::max<std::size_t>(begin, (*texts_)[text].begin);
    const void* other = std::memchr(letters + begin, kNoLetter, end - begin);
    if (other == nullptr) return;
    begin = static_cast<std::size_t>(static_cast<const Letter*>(other) - letters);
    text = textAt(begin, text);
    const bool isInside = text < size() && (*texts_)[text].begin <= begin;  // not between two texts
    if (isInside) spell(text++);
  }
}

void FoldedTexts::spell(std::size_t index) {
  const std::size_t begin = spelledLetters_.size();
  spelledLetters_.resize(begin + Letters::roomFor(text(index)));
  Letter* const room = spelledLetters_.data() + begin;
  const Letters::Spelling spelling = collation_->letters().spell(text(index), room);
  spelledLetters_.resize(begin + spelling.count);
  if (spelling.known) {
    spelled_.push_back({index, begin, spelling.count});
    spelledLetters_.push_back(kNoLetter);
  } else {
    unknown_.push_back(index);
  }
}

TextView FoldedTexts::text(std::size_t index) const {
  return characters_.substr((*texts_)[index].begin, (*texts_)[index].length);
}

// The first text from `from` on that ends after `place`.
std::size_t FoldedTexts::textAt(std::size_t place, std::size_t from) const {
  const auto first = texts_->begin() + static_cast<std::ptrdiff_t>(from);
  const auto endsBefore = [place](const TextRange& text) { return text.end() <= place; };
  const auto found = nearPartitionPoint(first, texts_->end(), endsBefore);
  return static_cast<std::size_t>(found - texts_->begin());
}

std::size_t FoldedTexts::nextInStretch(const SearchTerm& term, std::size_t from) const {
  if (term.letters() == nullptr || from >= texts_->size()) return texts_->size();
  const std::size_t begin = (*texts_)[from].begin;
  std::size_t index = from;
  const auto isInText = [&](std::size_t place) {
    index = textAt(begin + place, index);
    if (index == texts_->size()) return false;
    const TextRange& range = (*texts_)[index];
    return range.begin <= begin + place && begin + place + term.letters()->size() <= range.end();
  };
  const LettersView letters(letters_.data() + begin, characters_.size() - begin);
  const std::size_t place = term.letters()->findIn(letters, isInText);
  return place == WantedLetters::kNotFound ? texts_->size() : index;
}

std::size_t FoldedTexts::nextSpelled(const SearchTerm& term, std::size_t from) const {
  if (term.letters() == nullptr) return texts_->size();
  const LettersView letters(spelledLetters_.data(), spelledLetters_.size());
  auto next = std::lower_bound(spelled_.begin(), spelled_.end(), from,
                               [](const Spelled& text, std::size_t i) { return text.index < i; });
  for (; next != spelled_.end(); ++next) {
    const LettersView rest = letters.substr(next->begin);
    const std::size_t place = term.letters()->findIn(rest, [](std::size_t) { return true; });
    if (place == WantedLetters::kNotFound) break;
    const std::size_t hit = next->begin + place;
    next = nearPartitionPoint(next, spelled_.end(), [hit](const Spelled& text) {
      return text.begin + text.count <= hit;
    });
    if (term.occursIn(text(next->index), letters.substr(next->begin, next->count))) {
      return next->index;
    }
  }
  return texts_->size();
}

std::size_t FoldedTexts::nextUnknown(const SearchTerm& term, std::size_t from) const {
  auto index = std::lower_bound(unknown_.begin(), unknown_.end(), from);
  index =
      std::find_if(index, unknown_.end(), [&](std::size_t i) { return term.occursIn(text(i)); });
  return index == unknown_.end() ? texts_->size() : *index;
}

TermWalk::TermWalk(const FoldedTexts& texts, TextView term)
    : texts_(&texts),
      term_(*texts.collation_, term, texts.counts_),
      inStretch_(texts.nextInStretch(term_, 0)),
      spelled_(texts.nextSpelled(term_, 0)),
      unknown_(texts.nextUnknown(term_, 0)) {}

std::size_t TermWalk::next(std::size_t from) {
  if (inStretch_ < from) inStretch_ = texts_->nextInStretch(term_, from);
  if (spelled_ < from) spelled_ = texts_->nextSpelled(term_, from);
  if (unknown_ < from) unknown_ = texts_->nextUnknown(term_, from);
  return hit();
}

std::size_t TermWalk::hit() const { return std::min({inStretch_, spelled_, unknown_}); }

}  // namespace termvik
