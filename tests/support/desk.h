// SPDX-License-Identifier: MIT
// A desk to try the program at: a scratch folder for its files, hands on the memory toolkit that
// take the replay tool's commands, and short words for what they see. Texts are UTF-8.
#pragma once

#include <sstream>

#include <gtest/gtest.h>

#include "app/program.h"
#include "player.h"
#include "support/store.h"
#include "toolkit/memory/memory_hands.h"

namespace termvik::test {

// Each row as `word/number `.
inline std::string rowsText(const SortedRows& rows) {
  std::string all;
  for (std::int32_t i = 0; i < rows.count(); ++i) {
    all += toUtf8(rows.text(i)) + "/" + std::to_string(rows.itemData(i)) + " ";
  }
  return all;
}

class Desk : public testing::Test {
 protected:
  Desk() {
    app.Path = folder.path;
    hands->seesMessage = [this](TextView prompt, TextView) {
      messages += rows() + replaced(flat(prompt), flat(pathText(folder.path / "")), "@/") + "|";
    };
  }

  // Commands of the replay tool, one a line.
  void play(const std::string& commands) {
    std::istringstream lines(commands);
    for (std::string line; std::getline(lines, line);) player.play(line);
  }
  void open(const std::string& graph, const std::string& tools = "") {
    folder.write("graphword.txt", graph);
    folder.write("toolsword.txt", tools);
    play("start\noption optGlossary 2");
  }

  Window& window() { return *hands->toolkit().Forms().at(0); }
  ListBox& list() { return window().listBox(u"lstWords"); }
  EditBox& search() { return window().editBox(u"txtSearch"); }
  std::string rows() { return rowsText(list().rows()); }
  std::string article() { return flat(window().textBox(u"txtArticle").text()); }

  Folder folder;
  App app;
  std::string messages;  // each after the rows of its moment; @/ is the folder
  std::ostringstream out;
  std::unique_ptr<Hands> hands = makeMemoryHands(swedish(), {28800, 16200});
  replay::Player player{*hands, swedish(), app, out};
};

// A term occurs in a text when some stretch of the text equals it.
inline bool occursPlainly(const Collation& collation, TextView term, TextView text) {
  for (std::size_t from = 0; from < text.size(); ++from) {
    for (std::size_t length = 1; from + length <= text.size(); ++length) {
      if (collation.textCompare(text.substr(from, length), term) == 0) return true;
    }
  }
  return false;
}

}  // namespace termvik::test
