// SPDX-License-Identifier: MIT
// A session of the program on the memory toolkit, and beside it the plain one that it is held to.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "app/program.h"
#include "memory_files.h"
#include "plain_program.h"
#include "toolkit/shared/hands.h"

namespace termvik::fuzz {

class Session {
 public:
  Session(const Collation& collation, std::array<std::string, 2> files);

  // Both programs do what a user does, and must then show the same.
  void start(std::int16_t glossary);
  void reRead(const std::array<std::string, 2>& files);
  void changeText(TextView text);
  void type(char16_t character);
  void pressKey(std::int16_t key);
  void clickRow(std::int32_t row);
  void clickEachRow();
  void chooseGlossary(std::int16_t index);
  void chooseSearch(std::int16_t index);
  void searchAgain();
  void clickDoublets();
  void chooseLanguage(TextView menuItem, TextView type);
  void copyDoublets();
  void exportRows();
  void place(const Place& place);
  void close();

  const ListBox& list() const { return window().listBox(u"lstWords"); }

 private:
  Window& window() const { return *hands_->toolkit().Forms().at(0); }
  void clickOption(TextView name, std::int16_t index);
  void choose(TextView menuItem);
  std::int16_t glossaryToStore() const;
  void expectSameState();
  void expectSameRows();

  const Collation& collation_;
  std::array<std::string, 2> files_;
  MemoryApp app_;
  std::unique_ptr<Hands> hands_;
  std::optional<Program> program_;
  PlainProgram plain_;
  Text clipboard_;
};

}  // namespace termvik::fuzz
