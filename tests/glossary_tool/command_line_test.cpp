// SPDX-License-Identifier: MIT
// What the command line means, and what becomes of files.
#include "run.h"

namespace termvik::test {

class CommandLine : public ToolTest {
 protected:
  CommandLine() {
    folder.write("a.txt", "v/---/S: a/E: b/---/");
    folder.writeBytes("b.csv", "S,E\nc,d\n");
  }
};

TEST_F(CommandLine, PrintsHelpAndVersion) {
  for (const Strings& arguments : std::vector<Strings>{{"--help"},
                                                       {"check", "--help"},
                                                       {"convert", "--help"},
                                                       {"merge", "-h"},
                                                       {"stats", "--help"}}) {
    const Result result = run(arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out.find("Usage: termvik-glossary "), std::string::npos);
    EXPECT_NE(result.out.find("\n  termvik-glossary " +
                              (arguments.size() > 1 ? arguments[0] : "convert") + " "),
              std::string::npos)
        << "an example\n"
        << result.out;
    EXPECT_EQ(result.err, "");
  }
  EXPECT_EQ(run({"--version"}).out.substr(0, 17), "termvik-glossary ");
}

TEST_F(CommandLine, RefusesWrongUsage) {
  for (const Strings& arguments :
       std::vector<Strings>{{},
                            {"check"},
                            {"check", "--bogus", "a.txt"},
                            {"convert", "a.txt"},
                            {"convert", "a.txt", "b.txt", "c.txt"},
                            {"convert", "a.txt", "out"},
                            {"convert", "a.txt", "-"},
                            {"convert", "a.txt", ""},
                            {"convert", "-", "out.csv"},
                            {"convert", "a.txt", "x.csv", "--to", "doc"},
                            {"convert", "a.txt", "x.csv", "--encoding", "x"},
                            {"convert", "a.txt", "x.csv", "--delimiter", ",,"},
                            {"convert", "a.txt", "x.csv", "--columns", "_"},
                            {"convert", "a.txt", "x.utf8"},
                            {"convert", "a.txt", "x.utf8", "--source", "S"},
                            {"convert", "a.txt", "x.utf8", "--source", "S", "--target", "s"},
                            {"convert", "a.txt", "x.utf8", "--source", "S", "--target", "C"},
                            {"merge", "a.txt"},
                            {"stats"}}) {
    const Result result = run(arguments);
    EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find("--help"), std::string::npos);
  }
  EXPECT_FALSE(exists("x.csv"));
}

TEST_F(CommandLine, TakesAnyNameOfAFile) {
  for (const std::string name : {"check", "[x].txt", "-.txt", "a b;c.txt", "Ł 日本.txt"}) {
    std::filesystem::copy_file("a.txt", std::filesystem::path(fromUtf8(name)));
    EXPECT_EQ(run({"check", "--", name}).out, name + ": 1 entry, 0 errors, 0 warnings\n");
  }
  EXPECT_EQ(run({"check", "merge", "a.txt"}).status, 2);
}

TEST_F(CommandLine, ReadsStandardInputAndWritesStandardOutput) {
  EXPECT_EQ(run({"convert", "-", "-", "--from", "csv", "--to", "tsv"}, "S,F\na,b\n").out,
            "S\tF\na\tb\n");
  const Result odd = run({"convert", "--from=csv", "-", "--to=tsv", "-"}, "S,x\na\n");
  EXPECT_EQ(odd.err, "-:1: warning: the column 'x' is passed over\n");
  EXPECT_EQ(odd.status, 1);
  const Strings twice = {"convert", "-", "-", "--from", "csv", "--to", "csv", "--to", "tsv"};
  EXPECT_EQ(run(twice, "S\na\n").out, "S\na\n");
}

TEST_F(CommandLine, ReplacesAFileOnlyWhenItIsToldTo) {
  EXPECT_EQ(run({"convert", "b.csv", "a.txt"}).status, 2);
  EXPECT_EQ(folder.read("a.txt"), "v/---/S: a/E: b/---/");
  EXPECT_EQ(run({"convert", "b.csv", "a.txt", "--force"}).status, 0);
  EXPECT_EQ(folder.read("a.txt"), "b.csv/---/S: c/E: d/---/");
}

TEST_F(CommandLine, NeverWritesToAnInput) {
  std::filesystem::create_hard_link("b.csv", "hard.txt");
  Strings names = {"b.csv", "./b.csv", "hard.txt"};
  std::error_code refused;  // Windows asks for a privilege
  std::filesystem::create_symlink("b.csv", "soft.txt", refused);
  if (!refused) names.push_back("soft.txt");
  for (const std::string& output : names) {
    EXPECT_EQ(run({"convert", "b.csv", output, "--force"}).status, 2) << output;
    EXPECT_EQ(run({"merge", "a.txt", "b.csv", output, "--force"}).status, 2) << output;
    EXPECT_EQ(bytes("b.csv"), "S,E\nc,d\n");
  }
}

TEST_F(CommandLine, LeavesNothingBehindWhenItFails) {
  folder.writeBytes("wrong.csv", "x,y\n1,2\n");
  folder.writeBytes("foreign.csv", "S\n\xC5\x82\n");
  std::filesystem::create_directory("folder.txt");
  for (const Strings& arguments :
       std::vector<Strings>{{"convert", "wrong.csv", "out.txt"},
                            {"convert", "missing.csv", "out.txt"},
                            {"convert", "folder.txt", "out.txt"},
                            {"convert", "a.txt", "folder.txt", "--force"},
                            {"convert", "a.txt", "none/out.txt"},
                            {"merge", "a.txt", "missing.csv", "out.txt"},
                            {"check", "missing.txt"},
                            {"stats", "missing.txt"}}) {
    const Result result = run(arguments);
    EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
    EXPECT_NE(result.err.find(": error: "), std::string::npos);
  }
  EXPECT_EQ(run({"convert", "foreign.csv", "a.txt", "--force"}).status, 2);
  EXPECT_EQ(folder.read("a.txt"), "v/---/S: a/E: b/---/");
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator("."))
    files += entry.exists() ? 1 : 0;
  EXPECT_EQ(files, 5U);
  const Result rest = run({"check", "missing.txt", "a.txt"});
  EXPECT_EQ(rest.out, "a.txt: 1 entry, 0 errors, 0 warnings\n");
  EXPECT_EQ(rest.status, 2);
}

}  // namespace termvik::test
