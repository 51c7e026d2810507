// SPDX-License-Identifier: MIT
#include "plain_program.h"

#include <algorithm>

#include "common/toolkit/control.h"

namespace termvik::fuzz {

namespace {

constexpr TextView kRule = u"\r\n=======================================\r\n\r\n";
constexpr std::int16_t kBoth = 2;

}  // namespace

std::vector<Text> termsPlainly(const Collator& judge, TextView text) {
  constexpr std::size_t kMost = 10;
  constexpr TextView kBlanks = u" \t";
  std::vector<Text> terms;
  for (std::size_t at = 0; at + 1 < text.size();) {
    at = std::min(text.find_first_not_of(kBlanks, at), text.size());
    const bool isPhrase = text.substr(at).starts_with(u'"');
    const std::size_t begin = at + (isPhrase ? 1 : 0);
    const TextView ends = isPhrase ? TextView(u"\"") : kBlanks;
    const std::size_t end = std::min(text.find_first_of(ends, begin), text.size());
    const TextView term = text.substr(begin, end - begin);
    if (terms.size() < kMost && judge.compare(term, {}) != 0) terms.emplace_back(term);
    at = end + (isPhrase ? 1 : 0);
  }
  return terms;
}

void PlainProgram::start(const std::array<std::string, 2>& files, std::int16_t glossary) {
  *this = PlainProgram(*judge_);
  glossary_ = glossary;
  read(files);
  fill();
  select(0);
}

void PlainProgram::read(const std::array<std::string, 2>& files) {
  entries_ = readPlainly(*judge_, files[0]).entries;
  graphCount_ = entries_.size();
  for (const PlainEntry& entry : readPlainly(*judge_, files[1]).entries) entries_.push_back(entry);
}

void PlainProgram::reRead(const std::array<std::string, 2>& files) {
  read(files);
  fill();
  placeSelection();
}

// Takes each entry of the chosen glossaries and its number.
template <class Visit>
void PlainProgram::visitChosen(Visit visit) const {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const std::int16_t itsGlossary = i < graphCount_ ? 0 : 1;
    if (glossary_ == kBoth || glossary_ == itsGlossary) {
      visit(entries_[i], static_cast<std::int32_t>(i) + 1);
    }
  }
}

void PlainProgram::fill() {
  rows_.clear();
  selected_ = -1;
  visitChosen([this](const PlainEntry& entry, std::int32_t number) {
    for (const Text& word : entry.wordsOf(type_)) rows_.add(word, number);
  });
  if (marks_) markDoublets();
}

void PlainProgram::markDoublets() {
  for (const auto& [first, last] : rows_.equalRuns()) {
    for (std::int32_t row = first; row <= last; ++row) {
      rows_.setText(row, Text(rows_.text(row)).append(u" ------DUBBLETT-"));
    }
  }
}

Text PlainProgram::doubletReport() const {
  Text report = Text(u"DUBBLETTER").append(kRule);
  for (const auto& [first, last] : rows_.equalRuns()) {
    for (std::int32_t row = first; row <= last; ++row) {
      report.append(u"\r\n\r\n").append(entry(rows_.itemData(row)).article(type_));
    }
    report.append(kRule);
  }
  return report;
}

Text PlainProgram::exported() const {
  Text file;
  for (std::int32_t row = 0; row < rows_.count(); ++row) {
    const Text block = entry(rows_.itemData(row)).block(rows_.text(row));
    if (judge_->compare(block, {}) != 0) file.append(block).append(u"---\r\n");
  }
  return file;
}

void PlainProgram::fullSearch() {
  const std::vector<Text> terms = termsPlainly(*judge_, text_);
  if (terms.empty()) return;
  rows_.clear();
  selected_ = -1;
  article_.clear();
  visitChosen([&](const PlainEntry& entry, std::int32_t number) {
    Text word;
    if (entry.find(terms, type_, word)) rows_.add(word, number);
  });
  select(0);
}

void PlainProgram::select(std::int32_t row) {
  article_.clear();
  if (rows_.count() == 0) return;
  selected_ = std::clamp(row, 0, rows_.count() - 1);
  article_ = entry(rows_.itemData(selected_)).article(type_);
}

void PlainProgram::lookUp() {
  if (rows_.count() > 0) select(rows_.bestFit(text_).first);
}

void PlainProgram::placeSelection() {
  if (judge_->compare(text_, {}) == 0) {
    select(0);
  } else {
    lookUp();
  }
}

void PlainProgram::changeText(TextView text) {
  if (text == text_) return;
  text_ = text;
  lookUp();
}

void PlainProgram::pressKey(std::int16_t key) {
  constexpr std::int32_t kPage = 15;
  if (key == keys::kUp) select(selected_ - 1);
  if (key == keys::kDown) select(selected_ + 1);
  if (key == keys::kPageUp) select(selected_ - kPage);
  if (key == keys::kPageDown) select(selected_ + kPage);
  if (key != keys::kEnter) return;
  if (search_ == 1) fullSearch();
  lookUp();
}

void PlainProgram::clickRow(std::int32_t row) {
  if (row != selected_) select(row);
}

void PlainProgram::chooseGlossary(std::int16_t index) {
  if (index == glossary_) return;
  glossary_ = index;
  if (search_ == 1) return fullSearch();
  fill();
  placeSelection();
}

void PlainProgram::chooseSearch(std::int16_t index) {
  if (index == search_) return;
  search_ = index;
  if (index == 1) {
    fullSearch();
  } else {
    fill();
    placeSelection();
  }
  canSearchAgain_ = index == 1;
}

void PlainProgram::searchAgain() {
  if (canSearchAgain_) fullSearch();
}

void PlainProgram::checkDoublets(bool checked) {
  if (checked == marks_) return;
  marks_ = checked;
  languageChanged();
}

void PlainProgram::chooseLanguage(TextView type) {
  type_ = type;
  languageChanged();
}

void PlainProgram::languageChanged() {
  search_ = 0;
  fill();
  placeSelection();
}

}  // namespace termvik::fuzz
