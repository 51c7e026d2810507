// SPDX-License-Identifier: MIT
#include "player.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <map>

#include "json_lines.h"

namespace termvik::replay {

namespace {

std::string quoted(std::string_view word) { return "'" + std::string(word) + "'"; }

// The text of a STRING: `\t` is a tab and `\\` a backslash.
Text stringText(std::string_view string) {
  std::string plain;
  for (std::size_t i = 0; i < string.size(); ++i) {
    const char next = i + 1 < string.size() ? string[i + 1] : '\0';
    if (string[i] == '\\' && (next == 't' || next == '\\')) {
      plain += next == 't' ? '\t' : '\\';
      ++i;
    } else {
      plain += string[i];
    }
  }
  return fromUtf8(plain);
}

template <class Number>
Number numberOf(std::string_view word) {
  Number number{};
  const auto [stop, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || stop != word.data() + word.size() || !std::isfinite(number)) {
    throw ScriptError(quoted(word) + " is not a number for this place");
  }
  return number;
}

std::int32_t indexBelow(std::string_view word, std::int32_t limit) {
  const auto index = numberOf<std::int32_t>(word);
  if (index < 0 || index >= limit) throw ScriptError(quoted(word) + " is out of range");
  return index;
}

// The words of `rest`, each cut from the next by one blank.
std::vector<std::string_view> split(std::string_view rest) {
  std::vector<std::string_view> words;
  while (!rest.empty()) {
    const std::size_t blank = std::min(rest.find(' '), rest.size());
    words.push_back(rest.substr(0, blank));
    if (blank + 1 == rest.size()) words.emplace_back();  // a blank at the end opens an empty word
    rest.remove_prefix(std::min(blank + 1, rest.size()));
  }
  return words;
}

void expectWords(std::string_view command, const std::vector<std::string_view>& words,
                 std::size_t count) {
  if (words.size() == count) return;
  throw ScriptError(quoted(command) + " takes " + std::to_string(count) + " arguments, not " +
                    std::to_string(words.size()));
}

// The commands whose arguments are words, with how many of them; `text` and `type` take a STRING.
const std::map<std::string_view, std::size_t>& wordCommands() {
  static const std::map<std::string_view, std::size_t> commands = {
      {"key", 1},     {"click", 1}, {"row", 1},    {"option", 2},   {"check", 1},
      {"menu", 1},    {"call", 1},  {"window", 4}, {"maximise", 0}, {"minimise", 0},
      {"restore", 0}, {"close", 0}, {"state", 0},  {"rows", 2},     {"controls", 0}};
  return commands;
}

std::int16_t keyOf(std::string_view name) {
  static const std::map<std::string_view, std::int16_t> codes = {{"Up", keys::kUp},
                                                                 {"Down", keys::kDown},
                                                                 {"PageUp", keys::kPageUp},
                                                                 {"PageDown", keys::kPageDown},
                                                                 {"Enter", keys::kEnter}};
  const auto found = codes.find(name);
  if (found == codes.end()) throw ScriptError("there is no key " + quoted(name));
  return found->second;
}

}  // namespace

Player::Player(Hands& hands, const Collation& collation, const App& app, std::ostream& out)
    : hands_(hands), collation_(collation), app_(app), out_(out) {
  hands_.seesMessage = [this](TextView prompt, TextView title) {
    Json message;
    message["message"] = textJson(prompt);
    message["title"] = textJson(title);
    out_ << message << '\n';
  };
  hands_.seesClipboard = [this](TextView text) {
    out_ << Json{{"clipboard", textJson(text)}} << '\n';
  };
  hands_.seesModalBox = [this](Window& box) { out_ << aboutJson(box) << '\n'; };
}

void Player::play(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (line.empty() || line.front() == '#') return;
  const std::size_t blank = std::min(line.find(' '), line.size());
  const std::string_view command = line.substr(0, blank);
  act(command, line.substr(std::min(blank + 1, line.size())));
}

void Player::act(std::string_view command, std::string_view rest) {
  const bool takesString = command == "text" || command == "type";
  const auto found = wordCommands().find(command);
  if (command == "start") {
    expectWords(command, split(rest), 0);
    start();
    return;
  }
  if (!takesString && found == wordCommands().end()) {
    throw ScriptError("there is no command " + quoted(command));
  }
  if (!program_) throw ScriptError(quoted(command) + " needs the window: no start before it");
  if (command == "text") {
    hands_.replaceText(window().editBox(u"txtSearch"), stringText(rest));
  } else if (command == "type") {
    typeText(stringText(rest));
  } else {
    const Words words = split(rest);
    expectWords(command, words, found->second);
    actOnWords(command, words);
  }
}

void Player::actOnWords(std::string_view command, const Words& words) {
  if (command == "key") hands_.press(window().editBox(u"txtSearch"), keyOf(words[0]));
  if (command == "click") click(words[0]);
  if (command == "row") clickRow(words[0]);
  if (command == "option") clickOption(words[0], words[1]);
  if (command == "check") check(words[0]);
  if (command == "menu") chooseMenu(words[0]);
  if (command == "call") call(words[0]);
  if (command == "window") placeWindow(words);
  if (command == "maximise") hands_.maximise(window());
  if (command == "minimise") hands_.minimise(window());
  if (command == "restore") hands_.restore(window());
  if (command == "state") {
    out_ << stateJson(*program_) << '\n';
    if (counted_) out_ << counted_() << '\n';
  }
  if (command == "controls") out_ << controlsJson(*program_) << '\n';
  if (command == "rows") {
    constexpr std::int32_t kAny = std::numeric_limits<std::int32_t>::max();
    out_ << rowsJson(*program_, indexBelow(words[0], kAny), indexBelow(words[1], kAny)) << '\n';
  }
  if (command == "close") close();
}

void Player::start() {
  if (program_) throw ScriptError("'start' while the program runs");
  program_ = std::make_unique<Program>(hands_.toolkit(), collation_, app_);
  if (printsSpeech_) {
    window().Said = [this](TextView said) { out_ << Json{{"say", textJson(said)}} << '\n'; };
  }
  program_->start();
  hands_.settle();
}

void Player::close() {
  hands_.close(window());
  program_.reset();
}

void Player::typeText(TextView text) {
  EditBox& box = window().editBox(u"txtSearch");
  hands_.goToEnd(box);
  for (const char16_t character : text) hands_.type(box, character);
}

void Player::click(std::string_view name) {
  if (name != "txtSearch" && name != "cmdSearchAgain") {
    throw ScriptError("'click' takes txtSearch or cmdSearchAgain, not " + quoted(name));
  }
  hands_.click(window().control(fromUtf8(name)));
}

void Player::clickRow(std::string_view row) {
  ListBox& list = window().listBox(u"lstWords");
  hands_.clickRow(list, indexBelow(row, list.ListCount()));
}

void Player::clickOption(std::string_view name, std::string_view index) {
  const std::map<std::string_view, std::int32_t> options = {{"optGlossary", 3}, {"optSearch", 2}};
  const auto group = options.find(name);
  if (group == options.end()) throw ScriptError("there is no option " + quoted(name));
  const std::int32_t wanted = indexBelow(index, group->second);
  const Text wantedName = fromUtf8(name);
  for (const auto& control : window().controls()) {
    if (control->design().name == wantedName && control->design().index == wanted) {
      hands_.click(*control);
    }
  }
}

void Player::check(std::string_view value) {
  const std::int32_t wanted = indexBelow(value, 2);
  CheckBox& box = window().checkBox(u"chkShowDoublet");
  if (box.Value() != wanted) hands_.click(box);
}

void Player::chooseMenu(std::string_view name) {
  const Text wanted = fromUtf8(name);
  const auto& menu = window().design().menu;
  if (std::none_of(menu.begin(), menu.end(),
                   [&](const auto& item) { return item.name == wanted; })) {
    throw ScriptError("there is no menu item " + quoted(name));
  }
  hands_.choose(window(), window().menuItem(wanted));
}

void Player::call(std::string_view operation) {
  if (operation != "mnuCreateWordList_Click") {
    throw ScriptError("'call' takes mnuCreateWordList_Click, not " + quoted(operation));
  }
  window().menuItem(u"mnuCreateWordList").Click();
}

void Player::placeWindow(const Words& measures) {
  hands_.place(window(), {numberOf<float>(measures[0]), numberOf<float>(measures[1]),
                          numberOf<float>(measures[2]), numberOf<float>(measures[3])});
}

}  // namespace termvik::replay
