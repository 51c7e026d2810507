// SPDX-License-Identifier: MIT
// Plays a script of a user's acts on the real program.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/program.h"
#include "toolkit/shared/hands.h"

namespace termvik::replay {

// What is wrong with a line of a script.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Player {
 public:
  // What the program shows and what the script asks for is printed on `out`.
  Player(Hands& hands, const Collation& collation, const App& app, std::ostream& out);

  // Prints what the program says to a screen reader too.
  void printSpeech() { printsSpeech_ = true; }

  // Prints behind each state a line of what the process holds.
  using Counted = std::function<std::string()>;
  void printCounted(Counted counted) { counted_ = std::move(counted); }

  // Does what one line says. Throws ScriptError.
  void play(std::string_view line);

 private:
  using Words = std::vector<std::string_view>;

  void start();
  void act(std::string_view command, std::string_view rest);
  void actOnWords(std::string_view command, const Words& words);
  void typeText(TextView text);
  void click(std::string_view name);
  void clickRow(std::string_view row);
  void clickOption(std::string_view name, std::string_view index);
  void check(std::string_view value);
  void chooseMenu(std::string_view name);
  void call(std::string_view operation);
  void placeWindow(const Words& measures);
  void close();
  Window& window() { return program_->form().window(); }

  Hands& hands_;
  const Collation& collation_;
  const App& app_;
  std::ostream& out_;
  bool printsSpeech_ = false;
  Counted counted_;
  std::unique_ptr<Program> program_;
};

}  // namespace termvik::replay
