// SPDX-License-Identifier: MIT
#include "arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <utility>

#include "columns.h"
#include "files_in_out.h"
#include "glossary_file.h"
#include "help.h"
#include "messages.h"

namespace termvik::tool {

namespace {

using Strings = std::vector<std::string>;

constexpr const char* kFormatNames = "glossary, tsv, csv, tbx or omegat";

// All that an argument list without a command can begin with; anything else is a file to check.
constexpr std::array<std::string_view, 7> kBeginnings = {"check",  "convert", "merge",    "stats",
                                                         "--help", "-h",      "--version"};

std::string versionText() {
  return "termvik-glossary " + std::to_string(TERMVIK_VERSION_MAJOR) + "." +
         std::to_string(TERMVIK_VERSION_MINOR) + "." + std::to_string(TERMVIK_VERSION_REVISION);
}

// The parser takes an argument in brackets for a list; with this in front it is one like others.
constexpr char kNoList = '\x01';

std::string protectedArgument(const std::string& argument) {
  const bool looksLikeList = argument.starts_with('[') && argument.ends_with(']');
  return looksLikeList ? kNoList + argument : argument;
}

std::string plainArgument(const std::string& argument) {
  return argument.starts_with(kNoList) ? argument.substr(1) : argument;
}

// Prints the usage as we write it, and all else as the parser does.
class HelpFormatter : public CLI::Formatter {
 public:
  explicit HelpFormatter(std::string_view usage) : usage_(usage) {}
  std::string make_usage(const CLI::App*, std::string) const override { return usage_; }
  std::string make_positionals(const CLI::App*) const override { return {}; }
  std::string make_subcommands(const CLI::App*, CLI::AppFormatMode) const override { return {}; }

 private:
  std::string usage_;
};

void describe(CLI::App& app, const CommandHelp& help) {
  app.description(std::string(help.description));
  app.footer(std::string(help.examples));
  const auto formatter = std::make_shared<HelpFormatter>(help.usage);
  formatter->column_width(26);
  formatter->label("OPTIONS", "Options");
  app.formatter(formatter);
  app.set_help_flag("--help,-h", "Print this and stop");
}

// An option with a value of `type`. `take` gives false for a value that is not `what` it must be.
// Of an option that stands twice the last one counts, as with other commands.
void addValue(CLI::App& app, const std::string& name, const std::string& type,
              const std::string& what, const std::string& help,
              const std::function<bool(const std::string&)>& take) {
  const auto check = [name, what, take](const std::string& argument) {
    const std::string value = plainArgument(argument);
    if (!take(value)) throw CLI::ValidationError(name, "'" + value + "' is not " + what);
  };
  app.add_option_function<std::string>(name, check, help)->type_name(type)->take_last();
}

// Reads a name by `named`, which gives nothing for one that is unknown.
template <class Value, class Named>
std::function<bool(const std::string&)> into(std::optional<Value>& value, Named named) {
  return [&value, named](const std::string& name) {
    value = named(name);
    return value.has_value();
  };
}

std::function<bool(const std::string&)> intoLanguage(char16_t& letter) {
  return [&letter](const std::string& name) {
    const Text text = fromUtf8(name);
    letter = text.size() == 1 ? text.front() : u'\0';
    if (letter >= u'a' && letter <= u'z') letter = static_cast<char16_t>(letter - u'a' + u'A');
    return isLanguage(letter);
  };
}

std::optional<char16_t> delimiterNamed(const std::string& name) {
  const Text text = name == "tab" || name == "\\t" ? Text(u"\t") : fromUtf8(name);
  const bool canBe = text.size() == 1 && TextView(u"\"\r\n").find(text[0]) == TextView::npos;
  return canBe ? std::optional(text[0]) : std::nullopt;
}

class CommandLine {
 public:
  explicit CommandLine(const Collation& collation) : collation_(collation) {
    describe(app_, kToolHelp);
    app_.set_version_flag("--version", versionText(), "Print the version and stop");
    app_.require_subcommand(1);
    addCheck(addCommand("check", kCheckHelp, Command::Check));
    CLI::App& convert = addCommand("convert", kConvertHelp, Command::Convert);
    addReading(convert);
    addWriting(convert);
    CLI::App& merge = addCommand("merge", kMergeHelp, Command::Merge);
    merge.add_flag("--join", options_.join,
                   "Join an entry with an earlier one that has words of it in two languages");
    addReading(merge);
    addWriting(merge);
    addReading(addCommand("stats", kStatsHelp, Command::Stats));
  }

  Request read(Strings arguments) {
    std::transform(arguments.begin(), arguments.end(), arguments.begin(), protectedArgument);
    std::reverse(arguments.begin(), arguments.end());  // as the parser wants them
    try {
      app_.parse(arguments);
    } catch (const CLI::CallForHelp&) {
      return {std::nullopt, app_.help()};
    } catch (const CLI::CallForVersion& version) {
      return {std::nullopt, std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
      fail(error.what());
    }
    takeFiles();
    if (options_.command != Command::Check) takeFormats();
    return {options_, {}};
  }

 private:
  CLI::App& addCommand(const std::string& name, const CommandHelp& help, Command command) {
    CLI::App& app = *app_.add_subcommand(name);
    describe(app, help);
    app.allow_windows_style_options(false);
    app.add_option("FILE", files_);
    app.callback([this, command] { options_.command = command; });
    return app;
  }

  void addCheck(CLI::App& app) {
    app.add_flag("--doublets", options_.check.doublets,
                 "Name the words that stand in more than one entry");
    app.add_flag("--missing", options_.check.missing,
                 "Name the entries that lack one of S, E, D and F");
  }

  void addReading(CLI::App& app) {
    ReadOptions& read = options_.read;
    addValue(app, "--from", "FORMAT", kFormatNames, "Format of the inputs",
             into(from_, formatNamed));
    addValue(app, "--encoding", "NAME", "utf-8, utf-16le, utf-16be or windows-1252",
             "Encoding of the inputs: utf-8, utf-16le, utf-16be, windows-1252",
             into(read.encoding, encodingNamed));
    addValue(app, "--columns", "LIST", "a list such as S,E,_,C",
             "Columns of a table without a line of names, such as S,E,_,C",
             [this](const std::string& list) {
               const auto columns = columnsOfList(collation_, fromUtf8(list));
               if (columns) options_.read.columns = *columns;
               return columns.has_value();
             });
    addValue(app, "--delimiter", "CHARACTER", "one character or 'tab'",
             "What parts the cells of a table", into(read.delimiter, delimiterNamed));
    addValue(app, "--source", "LETTER", "S, E, D or F", "Source language of an OmegaT glossary",
             intoLanguage(read.source));
    addValue(app, "--target", "LETTER", "S, E, D or F", "Target language of an OmegaT glossary",
             intoLanguage(read.target));
  }

  void addWriting(CLI::App& app) {
    addValue(app, "--to", "FORMAT", kFormatNames, "Format of the output", into(to_, formatNamed));
    addValue(app, "--title", "TEXT",
             "a line in Windows-1252 that is no word line, separator or comment head",
             "First line of a glossary", [this](const std::string& title) {
               options_.title = fromUtf8(title);
               return isTitle(collation_, *options_.title);
             });
    app.add_flag("--lossy", options_.lossy, "Write ? for characters that Windows-1252 lacks");
    app.add_flag("--force", options_.force, "Replace an output that exists");
  }

  // The last file of a command that writes is its output.
  void takeFiles() {
    std::transform(files_.begin(), files_.end(), files_.begin(), plainArgument);
    if (std::find(files_.begin(), files_.end(), "") != files_.end()) fail("a file has no name");
    const bool writes = options_.command == Command::Convert || options_.command == Command::Merge;
    if (options_.command == Command::Convert && files_.size() != 2) {
      fail("convert takes one INPUT and one OUTPUT");
    }
    if (files_.size() < (writes ? 2U : 1U)) {
      fail(writes ? "merge takes one INPUT or more and an OUTPUT" : "a FILE is missing");
    }
    options_.inputs = files_;
    if (!writes) return;
    options_.output = files_.back();
    options_.inputs.pop_back();
  }

  Format formatOf(const std::string& name, const std::optional<Format>& chosen,
                  const std::string& option) const {
    if (chosen) return *chosen;
    if (name == kStandardStream) fail(name + " needs " + option);
    if (const auto format = formatOfFile(name)) return *format;
    if (options_.command == Command::Stats) return Format::Glossary;
    fail("the name " + name + " tells no format; " + option + " does");
  }

  void takeFormats() {
    bool anyOmegaT = false;
    for (const std::string& input : options_.inputs) {
      options_.inputFormats.push_back(formatOf(input, from_, "--from"));
      anyOmegaT = anyOmegaT || options_.inputFormats.back() == Format::OmegaT;
    }
    if (!options_.output.empty()) {
      options_.outputFormat = formatOf(options_.output, to_, "--to");
      anyOmegaT = anyOmegaT || options_.outputFormat == Format::OmegaT;
    }
    const ReadOptions& read = options_.read;
    if (!anyOmegaT) return;
    if (read.source == u'\0' || read.target == u'\0') {
      fail("the format omegat needs --source and --target");
    }
    if (read.source == read.target) fail("--source and --target are the same");
  }

  [[noreturn]] void fail(const std::string& what) const {
    const std::vector<CLI::App*> chosen = app_.get_subcommands();
    const std::string command = chosen.empty() ? "" : " " + chosen.front()->get_name();
    throw Failure("termvik-glossary: error: " + what + "\nSee termvik-glossary" + command +
                  " --help");
  }

  const Collation& collation_;
  CLI::App app_;
  Options options_;
  Strings files_;
  std::optional<Format> from_;
  std::optional<Format> to_;
};

}  // namespace

Request readArguments(const std::vector<std::string>& arguments, const Collation& collation) {
  if (arguments.empty()) throw Failure(std::string(kToolHelp.usage) + "--help tells more");
  Strings all = arguments;
  if (std::find(kBeginnings.begin(), kBeginnings.end(), all.front()) == kBeginnings.end()) {
    all.insert(all.begin(), "check");
  }
  return CommandLine(collation).read(std::move(all));
}

}  // namespace termvik::tool
