// SPDX-License-Identifier: MIT
// Full search against a plain pass over the same words and comments, folded beforehand. Judged is
// the search in all entries, from the making of the terms on, and the first one after a load, which
// folds the texts. The user's click, which also lists the hits, is reported beside it.
#include <map>
#include <optional>

#include "folded_bytes.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

constexpr double kLimit = 2;        // of one term
constexpr double kLimitOfTen = 10;  // of ten, in passes for one
constexpr double kLimitOfFirst = 5;

using Terms = std::vector<Text>;

struct Searched {
  explicit Searched(std::int64_t entries) : store(loadedStore(entries)), folded(*store) {}

  std::unique_ptr<defWords> store;
  FoldedBytes folded;
};

Searched& searchedOf(std::int64_t entries) {
  static std::map<std::int64_t, Searched> all;
  return all.try_emplace(entries, entries).first->second;
}

// The first word from the middle of the table on that has `part` and at least `length` characters;
// `part` itself when there is none.
Text wordWith(TextView part, std::size_t length, defWords& store) {
  for (std::int32_t i = store.gToolsLast / 2; i <= store.gToolsLast; ++i) {
    const clsWEntry& entry = store.gEntries(i);
    for (std::int32_t index = 1; index <= entry.entryWordCount(); ++index) {
      const TextView word = entry.entryWord(index);
      if (word.size() >= length && word.find(part) != TextView::npos) return Text(word);
    }
  }
  return Text(part);
}

std::size_t search(defWords& store, const Terms& texts) {
  const std::vector<TextView> terms(texts.begin(), texts.end());
  std::size_t hits = 0;
  visitHits(store, kBothGlossaries, terms, [&hits](TextView, std::int32_t) { ++hits; });
  return hits;
}

Task plainPasses(const FoldedBytes& folded, const Terms& texts) {
  std::vector<std::function<void()>> passes;
  for (const Text& text : texts) {
    const std::string term = FoldedBytes::fold(text);
    const Task library{[&, term] { benchmark::DoNotOptimize(folded.countByLibrary(term)); }};
    const Task firstByte{[&, term] { benchmark::DoNotOptimize(folded.countByFirstByte(term)); }};
    passes.push_back(fasterOf(library, firstByte).work);
  }
  return {[passes] {
    for (const auto& pass : passes) pass();
  }};
}

enum class Kind { Search, Click, FirstSearch };

double limitOf(Kind kind, std::size_t terms) {
  if (kind == Kind::Click) return Limit::kNone;
  if (kind == Kind::FirstSearch) return kLimitOfFirst;
  return terms == 1 ? kLimit : kLimitOfTen;
}

struct Case {
  std::string name;
  std::vector<TextView> parts;  // of the terms
  std::size_t length = 0;       // of the words that are taken for terms; 0: the parts themselves
};

// A click at the button `Search again` with the terms in the search box.
Task clickTask(SampleProgram& program, const Terms& terms) {
  Text text;
  for (const Text& term : terms) text.append(u"\"").append(term).append(u"\" ");
  program.type(text);
  program.choose(u"optSearch", 1);
  return {[&program] { program.search(); }};
}

Terms termsOf(const Case& searchCase, defWords& store) {
  Terms terms;
  for (const TextView part : searchCase.parts) {
    terms.push_back(searchCase.length == 0 ? Text(part) : wordWith(part, searchCase.length, store));
  }
  return terms;
}

void run(benchmark::State& state, Kind kind, const Case& searchCase) {
  Searched& searched = searchedOf(state.range(0));
  const Terms terms = termsOf(searchCase, *searched.store);
  std::size_t hits = 0;
  Task program{[&] { hits = search(*searched.store, terms); }};
  if (kind == Kind::FirstSearch) {
    program.prepare = [&] { searched.store = loadedStore(state.range(0)); };
  }
  std::optional<SampleProgram> window;
  if (kind == Kind::Click) program = clickTask(window.emplace(state.range(0)), terms);
  const Limit limit{.most = limitAtLargest(state, limitOf(kind, terms.size())),
                    .passes = static_cast<double>(terms.size())};
  measure(state, program, plainPasses(searched.folded, terms), limit);
  state.counters[kHits] = window ? window->list().ListCount() : static_cast<double>(hits);
}

const std::vector<Case>& cases() {
  static const std::vector<Case> all = {
      {"rare", {u"e"}, 9},
      {"frequent", {u"en"}},
      {"absent", {u"sterenaste"}},
      {"accented", {u"é"}, 7},
      {"sharp_s", {u"ß"}, 7},
      {"ligature", {u"œ"}, 7},
      {"phrase", {u" "}, 10},
      {"ten", {u"br", u"ck", u"fl", u"ng", u"å", u"ö", u"st", u"tr", u"ü", u"v"}, 8},
  };
  return all;
}

void addCase(const std::string& kindName, Kind kind, const Case& searchCase) {
  add(kindName + searchCase.name, kSizes,
      [=](benchmark::State& state) { run(state, kind, searchCase); });
}

}  // namespace

void addBenchmarks() {
  for (const Case& searchCase : cases()) addCase("search/", Kind::Search, searchCase);
  for (const Case& searchCase : cases()) addCase("click/", Kind::Click, searchCase);
  addCase("first_search/", Kind::FirstSearch, cases().front());
}

}  // namespace termvik::bench
