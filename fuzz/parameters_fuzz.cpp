// SPDX-License-Identifier: MIT
// The parameter file: its six values against a plain reading, what is written of them, and a start
// of the program with them.
#include <algorithm>
#include <array>
#include <cctype>

#include "app/program.h"
#include "common/system/codepage.h"
#include "input.h"
#include "memory_files.h"
#include "settings/parameters.h"
#include "toolkit/memory/memory_hands.h"

namespace termvik::fuzz {

namespace {

using Values = std::array<std::string, parameters::paramCount>;

constexpr std::array<std::string_view, parameters::paramCount> kNames = {
    "WINDOWSSTATE", "WINTOP", "WINLEFT", "WINWIDTH", "WINHEIGHT", "GLOSSARYINDEX"};

std::string trimmed(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
  return std::string(text.substr(begin, text.find_last_not_of(' ') + 1 - begin));
}

Values readPlainly(std::string_view file) {
  Values values;
  while (!file.empty()) {
    const std::size_t end = std::min(file.find('\r'), file.size());
    std::string line = trimmed(file.substr(0, end));
    file.remove_prefix(end);
    file.remove_prefix(file.starts_with("\r\n") ? 2 : file.empty() ? 0 : 1);
    line.erase(0, line.find_first_not_of(" \t"));
    const std::size_t length = std::min(line.find_first_of(" \t"), line.size());
    std::string name = line.substr(0, length);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    const auto slot = std::find(kNames.begin(), kNames.end(), name);
    if (slot == kNames.end()) continue;
    values.at(static_cast<std::size_t>(slot - kNames.begin())) = trimmed(line.substr(length));
  }
  return values;
}

}  // namespace

void fuzz(Input& input) {
  const Collation& collation = input.collation();
  MemoryApp app;
  app.decimalSeparator = input.below(2) == 0 ? u'.' : u',';
  const std::string file = input.allBytes();
  app.memory.write("Termvik.par", file);
  const Values values = readPlainly(file);
  const auto hands = makeMemoryHands(collation, {28800, 16200});

  parameters settings(hands->toolkit(), app);
  settings.setupPNames();
  expect(settings.readParameters(), "the file is there");
  std::string written;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const Text value = settings.getParam(static_cast<std::int32_t>(i) + 1);
    expectSame(encodeAnsi(value), values.at(i), "a stored value");
    written.append(kNames.at(i)).append(" ").append(values.at(i)).append("\r\n");
  }
  expect(settings.writeParameters(), "it can be written");
  expectSame(app.memory.read("Termvik.par"), written, "the written file");

  Program program(hands->toolkit(), collation, app);
  program.start();
  hands->close(program.form().window());
  const Values stored = readPlainly(app.memory.read("Termvik.par"));
  expect(!stored.front().empty() && !stored.back().empty(), "closing stores state and glossary");
}

}  // namespace termvik::fuzz
