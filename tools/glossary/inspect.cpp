// SPDX-License-Identifier: MIT
#include "inspect.h"

#include <algorithm>
#include <utility>

#include "losses.h"
#include "word_types.h"

namespace termvik::tool {

namespace {

// The lines of one block.
class BlockVisitor {
 public:
  BlockVisitor(const GlossaryLines& lines, const Collation& collation, Findings& findings)
      : lines_(lines),
        collation_(collation),
        findings_(findings),
        losses_(lines, collation, findings) {}

  void word(std::int32_t line, TextView text, char16_t wordType) {
    losses_.word(line, text, wordType);
    const char16_t type = languageOr(collation_, wordType);
    if (table().kind(line) == LineKind::Word) inspectWordLine(line, type);
    if (text.empty()) return;
    if (TextView(u" \t").find(text.front()) != TextView::npos || text.back() == u'\t') {
      find(kinds::kBlanks, line, "the word " + inQuotes(text) + " has a blank or tab at its edge");
    }
    if (!collation_.isEmpty(text)) words_.push_back({text, lines_.editorLine(line), type});
  }

  void comment(std::int32_t line, TextView text, bool isHead) {
    losses_.comment(line, text, isHead);
    if (!isHead && table().kind(line) == LineKind::Word &&
        isLanguage(languageOr(collation_, table()[line].front()))) {
      find(kinds::kWordInComment, line, inQuotes(table()[line]) + " belongs to the comment above");
    }
  }

  void passedOver(std::int32_t line) { losses_.passedOver(line); }

  // The words of the block, when all of its lines have been told.
  const InspectedWords& finish() {
    losses_.finish();
    findSameWords();
    return words_;
  }

 private:
  const LineTable& table() const { return lines_.table(); }

  void find(const Kind& kind, std::int32_t line, std::string text) {
    findings_.push_back({lines_.editorLine(line), &kind, std::move(text)});
  }

  void inspectWordLine(std::int32_t line, char16_t type) {
    const TextView text = table()[line];
    constexpr std::size_t kMark = 2;  // characters
    if (text.size() == kMark) {
      find(kinds::kEmptyWord, line, "no word stands after " + inQuotes(text));
    }
    if (!isLanguage(type)) {
      find(kinds::kWordType, line, inQuotes(text.substr(0, kMark)) + " stands for no language");
    }
  }

  bool areSame(const InspectedWord& a, const InspectedWord& b) const {
    return a.type == b.type && collation_.equal(a.text, b.text);
  }

  void findSameWord(const InspectedWord& word) {
    findings_.push_back(
        {word.line, &kinds::kSameWord, inQuotes(word.text) + " stands in this entry already"});
  }

  // Few words, as nearly all entries have, are held each against all before it.
  void findSameWords() {
    constexpr std::size_t kFew = 100;
    if (words_.size() <= kFew) {
      for (auto word = words_.begin(); word != words_.end(); ++word) {
        const auto isSame = [&](const InspectedWord& other) { return areSame(other, *word); };
        if (std::any_of(words_.begin(), word, isSame)) findSameWord(*word);
      }
      return;
    }
    InspectedWords sorted = words_;
    std::stable_sort(sorted.begin(), sorted.end(), [this](const auto& a, const auto& b) {
      return a.type != b.type ? a.type < b.type : collation_.textCompare(a.text, b.text) < 0;
    });
    for (std::size_t i = 1; i < sorted.size(); ++i) {
      if (areSame(sorted[i - 1], sorted[i])) findSameWord(sorted[i]);
    }
  }

  const GlossaryLines& lines_;
  const Collation& collation_;
  Findings& findings_;
  Losses losses_;
  InspectedWords words_;
};

}  // namespace

void inspectEntries(const GlossaryLines& lines, const Collation& collation, Findings& findings,
                    const std::function<void(const InspectedWords&)>& visit) {
  for (LineRange block{1, 1}; findBlock(lines.table(), block); block.first = block.last + 1) {
    BlockVisitor visitor(lines, collation, findings);
    visitEntry(lines.table(), block, visitor);
    const InspectedWords& words = visitor.finish();
    if (!words.empty()) visit(words);
  }
}

}  // namespace termvik::tool
