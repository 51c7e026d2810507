// SPDX-License-Identifier: MIT
#include "check.h"

#include <algorithm>
#include <deque>
#include <numeric>
#include <ostream>
#include <utility>

#include "bytes_check.h"
#include "files_in_out.h"
#include "inspect.h"
#include "word_classes.h"

namespace termvik::tool {

namespace {

// A file and what there is to say of it. Words that are looked for in all files lie in `lines`.
struct CheckedFile {
  CheckedFile(std::string fileName, GlossaryLines glossaryLines)
      : name(std::move(fileName)), lines(std::move(glossaryLines)) {}

  std::string name;
  GlossaryLines lines;
  Findings findings;
  std::size_t entries = 0;
};

// The words of the four languages in all files.
class AllWords {
 public:
  void add(CheckedFile& file, const InspectedWords& words) {
    ++entry_;
    for (const InspectedWord& word : words) {
      if (!isLanguage(word.type)) continue;
      texts_.push_back(word.text);
      places_.push_back({&file, word.line, entry_, word.type});
    }
  }

  // Tells each file of its words that stand in other entries too.
  void findDoublets(const Collation& collation) const;

 private:
  struct WordPlace {
    CheckedFile* file = nullptr;
    std::uint32_t line = 0;
    std::uint32_t entry = 0;
    char16_t type = u'\0';
  };

  using Indices = std::vector<std::size_t>;

  std::string otherPlaces(const Indices& same, const WordPlace& place) const;

  std::uint32_t entry_ = 0;
  std::vector<TextView> texts_;
  std::vector<WordPlace> places_;
};

// The places of the other entries, or nothing when there is none.
std::string AllWords::otherPlaces(const Indices& same, const WordPlace& place) const {
  constexpr std::size_t kMost = 100;  // of words that stand everywhere nobody reads all places
  std::string list;
  std::size_t others = 0;
  for (const std::size_t i : same) {
    const WordPlace& other = places_[i];
    if (other.entry == place.entry || ++others > kMost) continue;
    list.append(list.empty() ? "" : ", ").append(other.file->name).append(":");
    list.append(std::to_string(other.line));
  }
  if (others > kMost) list += " and " + counted(others - kMost, "more place", "more places");
  return list;
}

void AllWords::findDoublets(const Collation& collation) const {
  const std::vector<std::uint32_t> classes = classesOf(texts_, collation);
  const auto wordOf = [&](std::size_t i) { return std::pair(classes[i], places_[i].type); };
  std::vector<std::size_t> order(texts_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return wordOf(a) < wordOf(b); });
  for (auto first = order.begin(); first != order.end();) {
    const auto end = std::find_if(first, order.end(),
                                  [&](std::size_t i) { return wordOf(i) != wordOf(*first); });
    const Indices same(first, end);
    first = end;
    if (places_[same.front()].entry == places_[same.back()].entry) continue;
    for (const std::size_t i : same) {
      const WordPlace& place = places_[i];
      place.file->findings.push_back(
          {place.line, &kinds::kDoublet,
           inQuotes(texts_[i]) + " stands also at " + otherPlaces(same, place)});
    }
  }
}

void findMissing(const InspectedWords& words, Findings& findings) {
  std::string missing;
  for (const char16_t language : kLanguages) {
    const auto isOfIt = [language](const InspectedWord& word) { return word.type == language; };
    if (std::any_of(words.begin(), words.end(), isOfIt)) continue;
    missing.append(missing.empty() ? "" : ", ").append(toUtf8({&language, 1}));
  }
  if (!missing.empty()) {
    findings.push_back(
        {words.front().line, &kinds::kMissing, "the entry has no word in " + missing});
  }
}

void inspectLines(bool isUtf16, const CheckOptions& options, const Collation& collation,
                  CheckedFile& file, AllWords& allWords) {
  Findings ofLines;
  inspectEntries(file.lines, collation, ofLines, [&](const InspectedWords& words) {
    ++file.entries;
    if (options.missing) findMissing(words, ofLines);
    if (options.doublets && !isUtf16) allWords.add(file, words);
  });
  if (isUtf16) return;
  Findings& findings = file.findings;
  if (file.entries == 0) {
    findings.push_back({1, &kinds::kNoEntries, "the program finds no entry with a word"});
  }
  const LineTable& table = file.lines.table();
  if (table.upperBound() > 0 && table.kind(1) == LineKind::Word) {
    findings.push_back(
        {1, &kinds::kFirstLine, "the file begins with a word; the version report shows this line"});
  }
  findings.insert(findings.end(), ofLines.begin(), ofLines.end());
}

void report(CheckedFile& file, Streams& streams, Messages& messages) {
  messages.clearProgress();
  print(file.name, file.findings, streams.out);
  const std::size_t errors = countOf(file.findings, Severity::Error);
  const std::size_t warnings = countOf(file.findings, Severity::Warning);
  streams.out << file.name << ": " << counted(file.entries, "entry", "entries") << ", "
              << counted(errors, "error", "errors") << ", "
              << counted(warnings, "warning", "warnings") << '\n';
  for (const Finding& finding : file.findings) messages.count(finding.kind->severity);
}

}  // namespace

bool check(const std::vector<std::string>& files, const CheckOptions& options,
           const Collation& collation, Streams& streams, Messages& messages) {
  bool allRead = true;
  AllWords allWords;
  std::deque<CheckedFile> checked;
  for (const std::string& name : files) {
    try {
      Input input(name, streams);
      const FileBytes fileBytes = readBytes(input);
      const std::string_view bytes = viewOf(fileBytes);
      Findings ofBytes;
      const bool isUtf16 = inspectBytes(bytes, ofBytes);
      checked.emplace_back(name, GlossaryLines::ofBytes(bytes, collation));
      checked.back().findings = std::move(ofBytes);
      inspectLines(isUtf16, options, collation, checked.back(), allWords);
    } catch (const Failure& failure) {
      messages.say(failure.what());
      allRead = false;
      continue;
    }
    if (options.doublets) continue;
    report(checked.back(), streams, messages);
    checked.clear();
  }
  if (options.doublets) allWords.findDoublets(collation);
  for (CheckedFile& file : checked) report(file, streams, messages);
  return allRead;
}

}  // namespace termvik::tool
