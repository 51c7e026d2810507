// SPDX-License-Identifier: MIT
#include "sample_program.h"

#include "sample_glossary.h"
#include "toolkit/memory/memory_hands.h"

namespace termvik::bench {

namespace {

constexpr ScreenSize kScreen{28800, 16200};
constexpr std::int16_t kBothIndex = 2;

App appIn(const std::filesystem::path& folder) {
  App app;
  app.Path = folder;
  return app;
}

}  // namespace

const Collation& swedish() {
  static const Collation collation("sv_SE");
  return collation;
}

std::unique_ptr<defWords> loadedStore(std::int64_t entries) {
  auto store = std::make_unique<defWords>(swedish(), sampleFolder(entries), [](TextView) {});
  store->gWordType = u"S";
  store->readGlossaries();
  return store;
}

SampleProgram::SampleProgram(std::int64_t entries)
    : hands_(makeMemoryHands(swedish(), kScreen)),
      app_(appIn(sampleFolder(entries))),
      program_(hands_->toolkit(), swedish(), app_) {
  program_.start();
  choose(u"optGlossary", kBothIndex);
}

void SampleProgram::choose(TextView group, std::int16_t index) {
  for (const auto& control : window().controls()) {
    const ControlDesign& design = control->design();
    if (design.name == group && design.index == index) hands_->click(*control);
  }
}

void fillList(ListBox& list, defWords& store) {
  visitWords(store, kBothGlossaries,
             [&](TextView word, std::int32_t entry) { list.AddItem(word, entry); });
}

std::vector<TextView> swedishWords(defWords& store) {
  std::vector<TextView> words;
  for (std::int32_t i = store.gGraphFirst; i <= store.gToolsLast; ++i) {
    const clsWEntry& entry = store.gEntries(i);
    if (entry.entryWordCount() > 0) words.push_back(entry.entryWord(1));
  }
  return words;
}

}  // namespace termvik::bench
