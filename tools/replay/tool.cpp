// SPDX-License-Identifier: MIT
// termvik-replay: the program under a script of what a user does.
//
//   termvik-replay [--toolkit memory|qt|win32] [--screen WIDTHxHEIGHT] [--say] [--handles]
//   --folder DIR [SCRIPT]
//
// See docs/replay.md for the script's commands and what is printed.
#include "tool.h"

#include <charconv>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>

#include "common/system/files.h"
#include "player.h"
#include "toolkit/hands/hands_by_name.h"

namespace termvik {

namespace {

constexpr int kWrongUse = 2;

struct Options {
  std::string toolkit = "memory";
  ScreenSize screen{28800, 16200};
  bool say = false;
  bool handles = false;
  std::filesystem::path folder;
  std::filesystem::path script;
};

bool readScreen(std::string_view text, ScreenSize& screen) {
  const char* const end = text.data() + text.size();
  const auto width = std::from_chars(text.data(), end, screen.Width);
  if (width.ec != std::errc() || width.ptr == end || *width.ptr != 'x') return false;
  const auto height = std::from_chars(width.ptr + 1, end, screen.Height);
  return height.ec == std::errc() && height.ptr == end && screen.Width > 0 && screen.Height > 0;
}

// False, with the reason in `wrong`, when the command line cannot be used.
bool readOptions(const replay::Arguments& arguments, Options& options, std::string& wrong) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string argument = toUtf8(pathText(arguments[i]));
    const bool takesValue =
        argument == "--toolkit" || argument == "--screen" || argument == "--folder";
    if (takesValue && i + 1 == arguments.size()) {
      wrong = argument + " needs a value";
      return false;
    }
    if (argument == "--toolkit") {
      options.toolkit = toUtf8(pathText(arguments[++i]));
    } else if (argument == "--say") {
      options.say = true;
    } else if (argument == "--handles") {
      options.handles = true;
    } else if (argument == "--folder") {
      options.folder = arguments[++i];
    } else if (argument == "--screen") {
      if (!readScreen(toUtf8(pathText(arguments[++i])), options.screen)) {
        wrong = "--screen takes WIDTHxHEIGHT in twips";
        return false;
      }
    } else if (argument.starts_with("--") || !options.script.empty()) {
      wrong = "what is " + argument + "?";
      return false;
    } else {
      options.script = arguments[i];
    }
  }
  if (options.folder.empty()) wrong = "--folder is missing";
  return wrong.empty();
}

int playScript(std::istream& script, replay::Player& player) {
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    try {
      player.play(line);
    } catch (const replay::ScriptError& error) {
      std::cout.flush();
      std::cerr << "line " << number << ": " << error.what() << '\n';
      return kWrongUse;
    }
  }
  return 0;
}

int run(const Options& options, const replay::Player::Counted& counted) {
  const Collation collation("sv_SE");
  const std::unique_ptr<Hands> hands = makeHands(options.toolkit, collation, options.screen);
  if (!hands) {
    std::cerr << "termvik-replay: this build has no toolkit " << options.toolkit << '\n';
    return kWrongUse;
  }
  if (options.handles && !counted) {
    std::cerr << "termvik-replay: Windows alone has --handles\n";
    return kWrongUse;
  }
  App app;
  app.Path = options.folder;
  replay::Player player(*hands, collation, app, std::cout);
  if (options.say) player.printSpeech();
  if (options.handles) player.printCounted(counted);
  if (options.script.empty()) return playScript(std::cin, player);
  std::ifstream script(options.script, std::ios::binary);
  if (!script) {
    std::cerr << "termvik-replay: cannot read " << toUtf8(pathText(options.script)) << '\n';
    return kWrongUse;
  }
  return playScript(script, player);
}

}  // namespace

int replay::runTool(const Arguments& arguments, const Player::Counted& counted) {
  Options options;
  std::string wrong;
  if (!readOptions(arguments, options, wrong)) {
    std::cerr << "termvik-replay: " << wrong
              << "\nusage: termvik-replay [--toolkit memory|qt|win32] [--screen WIDTHxHEIGHT]"
                 " [--say] [--handles] --folder DIR [SCRIPT]\n";
    return kWrongUse;
  }
  return run(options, counted);
}

}  // namespace termvik
