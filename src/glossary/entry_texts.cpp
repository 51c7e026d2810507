#include "glossary/entry_texts.h"

#include <algorithm>

namespace termvik {

namespace {

// There is room for one letter more in so many characters before the letters have to move.
constexpr std::size_t kMoreLetters = 16;

// The letters of one text in so many are counted.
constexpr std::size_t kCounted = 16;

}  // namespace

void EntryTexts::addWord(TextView word, char16_t wordType) {
  stored_.push_back({word.data(), static_cast<std::uint32_t>(word.size()), wordType});
  folded_.reset();
}

const FoldedTexts& EntryTexts::folded() const {
  if (folded_) return *folded_;
  folded_.emplace();
  PackedTexts<Letter>& folded = folded_->letters;
  std::size_t characters = 0;
  for (const Stored& stored : stored_) characters += stored.length + 1;
  folded.reserve(size(), characters + characters / kMoreLetters);
  for (std::size_t i = 0; i < size(); ++i) {
    Letter* const room = folded.roomFor(Letters::roomFor(text(i)));
    const Letters::Spelling spelling = collation_->letters().spell(text(i), room);
    if (!spelling.known) folded_->unknown.push_back(i);
    folded_->oneLetterEach.push_back(spelling.oneLetterEach);
    if (i % kCounted == 0) {
      std::for_each(room, room + spelling.count, [this](Letter l) { ++folded_->counts[l]; });
    }
    room[spelling.count] = kNoLetter;
    folded.takeRoom(spelling.count + 1);
    folded.endText();
  }
  return *folded_;
}

LettersView EntryTexts::lettersOf(const FoldedTexts& folded, std::size_t index) const {
  LettersView letters = folded.letters[index];
  letters.remove_suffix(1);
  return letters;
}

std::size_t EntryTexts::firstWith(const SearchTerm& term, std::size_t first) const {
  const std::vector<std::size_t>& unknown = folded().unknown;
  const std::size_t hit = firstKnownWith(term, first);
  auto other = std::lower_bound(unknown.begin(), unknown.end(), first);
  for (; other != unknown.end() && *other < hit; ++other) {
    if (term.occursIn(text(*other))) return *other;
  }
  return hit;
}

std::size_t EntryTexts::firstKnownWith(const SearchTerm& term, std::size_t first) const {
  const PackedTexts<Letter>& letters = folded().letters;
  std::size_t index = first;
  while (index < size()) {
    const std::size_t begin = letters.beginOf(index);
    const LettersView rest(letters.data() + begin, letters.characterCount() - begin);
    const std::size_t hit = term.find(rest);
    if (hit == SearchTerm::kNotFound) break;
    index = letters.indexAt(begin + hit, index);
    // Without a look at the text itself where that is not needed: it lies far away.
    if (folded().oneLetterEach[index]) return index;
    if (term.occursIn(text(index), lettersOf(folded(), index))) return index;
    ++index;
  }
  return size();
}

const LetterCounts& EntryTexts::letterCounts() const { return folded().counts; }

}  // namespace termvik
