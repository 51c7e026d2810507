// SPDX-License-Identifier: MIT
// A start whose glossaries are read ahead, while the window system gets ready, is as any other.
#include "support/desk.h"

namespace termvik::test {

struct ReadAhead : Desk {
  ReadAhead() { folder.write("Termvik.par", "GLOSSARYINDEX 2"); }

  void start(LinesAhead ahead) {
    program.emplace(hands->toolkit(), swedish(), app, std::move(ahead));
    program->start();
  }
  void readAgain() { hands->choose(window(), window().menuItem(u"mnuReRead")); }

  std::optional<Program> program;
};

TEST_F(ReadAhead, IsForTheFirstReadingAlone) {
  folder.write("graphword.txt", "S: a/E: b/---/S: c/C: note");
  folder.write("toolsword.txt", "S: d");
  LinesAhead ahead = readAhead(swedish(), disk(), folder.path);
  ahead.graph.wait();
  ahead.tools.wait();
  folder.write("graphword.txt", "S: e");
  folder.write("toolsword.txt", "S: f");
  start(std::move(ahead));
  EXPECT_EQ(rows() + article(), "a/1 c/2 d/3 S: a/E: b//");
  readAgain();
  EXPECT_EQ(rows() + messages, "e/1 f/2 ");
}

TEST_F(ReadAhead, WaitsForAUserWhoIsToldThatAFileIsMissing) {
  folder.write("toolsword.txt", "S: old");
  hands->seesMessage = [&](TextView prompt, TextView) {
    messages += flat(prompt.substr(0, prompt.find(u" file"))) + "|";
    folder.write("toolsword.txt", "S: new");
  };
  start(readAhead(swedish(), disk(), folder.path));
  EXPECT_EQ(rows() + messages, "new/1 Could not find the glossary|");
}

// Opens all but one file, for which there is no memory.
struct ShortFiles : Files {
  explicit ShortFiles(std::string file) : failing(std::move(file)) {}

  std::unique_ptr<File> openToRead(const std::filesystem::path& fileName) const override {
    if (fileName.filename() == failing) throw std::bad_alloc();
    return disk().openToRead(fileName);
  }
  std::unique_ptr<File> openToWrite(const std::filesystem::path&) const override { return nullptr; }

  std::string failing;
};

TEST_F(ReadAhead, TellsOnceThatMemoryHasRunOut) {
  folder.write("graphword.txt", "S: a");
  folder.write("toolsword.txt", "S: b");
  for (const char* const failing : {"graphword.txt", "toolsword.txt"}) {
    const ShortFiles files(failing);
    messages.clear();
    start(readAhead(swedish(), files, folder.path));
    EXPECT_EQ(messages, "Termvik does not have enough memory for these glossaries|");
    EXPECT_EQ(rows() + article(), "");
    readAgain();
    EXPECT_EQ(rows(), "a/1 b/2 ") << failing;
    program.reset();
  }
}

}  // namespace termvik::test
