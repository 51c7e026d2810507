// SPDX-License-Identifier: MIT
// What the help of each command says beside its options.
#pragma once

#include <string_view>

namespace termvik::tool {

struct CommandHelp {
  std::string_view usage;
  std::string_view description;
  std::string_view examples;
};

inline constexpr CommandHelp kToolHelp{
    R"(Usage: termvik-glossary check FILE...
       termvik-glossary convert [OPTIONS] INPUT OUTPUT
       termvik-glossary merge [OPTIONS] INPUT... OUTPUT
       termvik-glossary stats FILE...
       termvik-glossary --help | --version | COMMAND --help
       termvik-glossary FILE
)",
    "Brings your own words into glossaries of Termvik.\n",
    R"(Commands:
  check     say what Termvik will not show of a glossary; FILE alone does the same
  convert   write a word list in another format, or mend a glossary
  merge     write the entries of several files into one
  stats     count entries, words, doublets and comments

Formats, by the ending of a file's name or by --from and --to:
  glossary   .txt         Termvik's own: Windows-1252, CR LF
  tsv        .tsv .tab    a table, columns parted by tabs
  csv        .csv         a table, columns parted by commas or semicolons
  tbx        .tbx .xml    TermBase eXchange
  omegat     .utf8        a translation tool's glossary: source, target, comment

Exit status: 0 all is well; 1 there is an error or a warning; 2 wrong usage, a
file that cannot be read or written, or nothing was written for another reason.

Example:
  termvik-glossary convert words.csv toolsword.txt
)"};

inline constexpr CommandHelp kCheckHelp{
    "Usage: termvik-glossary check [OPTIONS] FILE...\n",
    "Says what Termvik will not show of a glossary, and what else is odd about it:\n"
    "a line for each finding, FILE:LINE: error|warning: TEXT [CODE].\n",
    "Example:\n"
    "  termvik-glossary check --doublets graphword.txt toolsword.txt\n"};

inline constexpr CommandHelp kConvertHelp{
    "Usage: termvik-glossary convert [OPTIONS] INPUT OUTPUT\n",
    "Writes a word list in another format, or a glossary whose encoding or line ends\n"
    "are wrong as it should be. - is standard input (with --from) or output (with --to).\n",
    "Examples:\n"
    "  termvik-glossary convert words.csv toolsword.txt\n"
    "  termvik-glossary convert saved-as-utf-8.txt mended.txt\n"
    "  termvik-glossary convert --source E --target S terms.utf8 terms.txt\n"};

inline constexpr CommandHelp kMergeHelp{
    "Usage: termvik-glossary merge [OPTIONS] INPUT... OUTPUT\n",
    "Writes the entries of all inputs, in order, into one file. Of entries that are\n"
    "equal, one is written.\n",
    "Example:\n"
    "  termvik-glossary merge --join toolsword.txt new.csv all.txt\n"};

inline constexpr CommandHelp kStatsHelp{
    "Usage: termvik-glossary stats [OPTIONS] FILE...\n",
    "Counts the entries, words, doublets and comments of each file and of all together.\n",
    "Example:\n"
    "  termvik-glossary stats graphword.txt toolsword.txt\n"};

}  // namespace termvik::tool
