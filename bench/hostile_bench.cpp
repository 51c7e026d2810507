// SPDX-License-Identifier: MIT
// Files that nobody writes by hand: what is done with them must grow as n log n does.
//
// The yardstick is the same work on a file an eighth as large, eight times over. Where the work
// grows as n log n the ratio is a little above 1, where it grows as the square it is 8.
#include <fstream>
#include <stdexcept>
#include <string>

#include "lookup/doublets.h"
#include "lookup/look_up.h"
#include "sample_glossary.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

constexpr std::int64_t kPart = 8;
constexpr double kLimit = 4;        // fresh memory costs a large file more
constexpr double kReportLimit = 4;  // times a copy of the text
constexpr std::int64_t kTenMillion = 10'000'000;

std::string repeated(std::string_view text, std::int64_t times) {
  std::string all;
  for (std::int64_t i = 0; i < times; ++i) all += text;
  return all;
}

// A comment that begins with nothing and goes on for many lines.
std::string softHyphens(std::int64_t lines) {
  return "S: a\r\nC: \xADx\r\n" + repeated("remark on it\r\n", lines);
}
// Each line of it is asked whether the comment so far is empty.
std::string nothingButSoftHyphens(std::int64_t lines) {
  return "S: a\r\nC: \r\n" + repeated("\xAD\xAD\r\n", lines);
}
std::string longComment(std::int64_t bytes) {
  return "S: a\r\nC: " + repeated("a long remark\xDF, ", bytes / 16);
}
std::string longWord(std::int64_t bytes) {
  return "S: " + repeated(
                     "a-stra\xDF"
                     "e",
                     bytes / 8);
}
// Of which some are no letters by themselves, so that the collator is asked.
std::string unknownWord(std::int64_t bytes) {
  return "S: " + repeated(
                     "stra\xDF"
                     "e\xB7l",
                     bytes / 8);
}
std::string emptyBlocks(std::int64_t blocks) { return repeated("\r\n---\r\n", blocks); }
std::string equalWords(std::int64_t words) { return "S: " + repeated("bult\r\n", words); }

// A folder with that text as its graphical glossary.
class HostileFolder {
 public:
  explicit HostileFolder(const std::string& text) : folder_(makeScratchFolder()) {
    const auto [graph, tools] = glossaryFiles(*folder_);
    std::ofstream(graph, std::ios::binary) << text;
    std::ofstream(tools, std::ios::binary) << "S: tool";
    if (std::filesystem::file_size(graph) != text.size()) throw std::runtime_error("disk full");
  }

  const std::filesystem::path& path() const { return *folder_; }

 private:
  std::shared_ptr<const std::filesystem::path> folder_;
};

struct Opened {
  explicit Opened(const HostileFolder& folder) : words(swedish(), folder.path(), [](TextView) {}) {
    words.gWordType = u"S";
    words.readGlossaries();
    visitWords(words, kBothGlossaries,
               [this](TextView word, std::int32_t entry) { rows.add(word, entry); });
  }

  defWords words;
  SortedRows rows{swedish()};
};

// All that a user can have done with a file at once.
void use(const HostileFolder& folder) {
  Opened opened(folder);
  SortedRows& rows = opened.rows;
  markDoublets(rows, [&](std::int32_t row, TextView text) { rows.setText(row, text); });
  const FoundRows found = lookUp(rows, u"strasse\u00B7x");
  const std::int32_t entry = rows.itemData(found.top);
  benchmark::DoNotOptimize(opened.words.gEntries(entry).getArticle(u"S"));
  visitHits(opened.words, kBothGlossaries, {u"remarkable", u"l\u00B7s"},
            [](TextView word, std::int32_t) { benchmark::DoNotOptimize(word); });
}

void addFile(const std::string& name, std::int64_t size, std::string (*text)(std::int64_t)) {
  add("hostile/" + name, {size}, [text](benchmark::State& state) {
    const HostileFolder whole(text(state.range(0)));
    const HostileFolder part(text(state.range(0) / kPart));
    const Task program{[&] { use(whole); }};
    const Task parts{[&] {
      for (std::int64_t i = 0; i < kPart; ++i) use(part);
    }};
    measure(state, program, parts, {.most = kLimit});
  });
}

// Their report is the square of their number, and takes as long as its text.
void reportEqualWords(benchmark::State& state) {
  Opened opened{HostileFolder(equalWords(state.range(0)))};
  const Text report = doubletReport(opened.rows, opened.words);
  const Task program{[&] { benchmark::DoNotOptimize(doubletReport(opened.rows, opened.words)); }};
  const Task copy{[&] { benchmark::DoNotOptimize(Text(report)); }};
  measure(state, program, copy, {.most = kReportLimit});
}

}  // namespace

void addBenchmarks() {
  addFile("soft_hyphens", 100'000, softHyphens);
  addFile("only_soft_hyphens", 100'000, nothingButSoftHyphens);
  addFile("long_comment", kTenMillion, longComment);
  addFile("long_word", kTenMillion, longWord);
  addFile("unknown_word", 200'000, unknownWord);
  addFile("empty_blocks", 1'048'576, emptyBlocks);
  addFile("equal_words", 30'000, equalWords);
  add("hostile/report", {3000}, reportEqualWords);
}

}  // namespace termvik::bench
