// SPDX-License-Identifier: MIT
// What is done ahead on threads is as if it were done when it is asked for: the reading of the
// glossaries while the window system gets ready, the folding of many texts for full search.
#include "glossary/full_search.h"
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

// The bytes of enough texts for a thread of their own, each with `word`.
static std::string manyTexts(TextView word) {
  const std::string comment(100, 'm');
  std::string bytes;
  for (int i = 0; i < 80'000; ++i) {
    bytes +=
        "S: " + encodeAnsi(word) + " " + std::to_string(i) + "\r\nC: " + comment + "\r\n---\r\n";
  }
  return bytes;
}

TEST(FoldedAhead, IsWhatASearchFindsAndGoesWithItsGlossary) {
  Store store("", "");
  const auto read = [&store](TextView word) {
    store.folder.writeBytes("graphword.txt", manyTexts(word));
    store.words.clearGlossaries();
    store.words.readGlossaries();
  };
  const auto hits = [&store](TextView term) {
    std::size_t count = 0;
    visitHits(store.words, 1, store.words.gGraphLast, {term},
              [&count](TextView, std::int32_t) { ++count; });
    return count;
  };
  read(u"Straße");
  EXPECT_EQ(hits(u"strasse 3999"), 11U);
  for (const TextView word : {u"Weg", u"Gaße", u"Pfad"}) read(word);  // while others are folded
  EXPECT_EQ(hits(u"gasse"), 0U);
  EXPECT_EQ(hits(u"pfad 1"), 11'111U);
  store.words.emptyGlossaries();
  EXPECT_EQ(hits(u"pfad"), 0U);
}

}  // namespace termvik::test
