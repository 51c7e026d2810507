// SPDX-License-Identifier: MIT
// The program's modules at work on a sample glossary, on the memory toolkit.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "app/program.h"
#include "lookup/word_rows.h"
#include "toolkit/shared/hands.h"

namespace termvik::bench {

const Collation& swedish();

// The store, loaded with the sample of that many entries.
std::unique_ptr<defWords> loadedStore(std::int64_t entries);

// The program with both glossaries of a sample in its list, and hands on it.
class SampleProgram {
 public:
  explicit SampleProgram(std::int64_t entries);

  ListBox& list() const { return window().listBox(u"lstWords"); }

  void type(TextView text) { hands_->replaceText(window().editBox(u"txtSearch"), text); }
  void choose(TextView group, std::int16_t index);
  void search() { hands_->click(window().commandButton(u"cmdSearchAgain")); }

 private:
  Window& window() const { return *hands_->toolkit().Forms().front(); }

  std::unique_ptr<Hands> hands_;
  App app_;
  Program program_;
};

inline constexpr ChosenGlossaries kBothGlossaries{.graphical = true, .tools = true};

// Fills the list with the store's words as the program does.
void fillList(ListBox& list, defWords& store);

// The words that fillList takes from a sample: the first of each entry.
std::vector<TextView> swedishWords(defWords& store);

}  // namespace termvik::bench
