// SPDX-License-Identifier: MIT
// Files that fail, come short, change while they are read, or are too large: what the user has is
// kept, and the program goes on with what it got.
#include "common/system/line_reader.h"
#include "support/desk.h"
#include "support/faulty_files.h"

namespace termvik::test {

// A glossary that takes several readings, each entry a line and a separator.
static std::string manyEntries(const std::string& prefix) {
  std::string file;
  for (int i = 0; i < 5000; ++i) file += "S: " + prefix + std::to_string(100'000 + i) + "/---/";
  return file;
}

TEST(Failures, OfAReadingKeepWhatWasRead) {
  FaultyFiles files;
  Store store(manyEntries("g"), manyEntries("t"), files);
  const Strings whole = store.entries();
  const std::size_t half = whole.size() / 2;
  const std::size_t operations = files.operations();
  EXPECT_GT(operations, 4 * 4U);
  for (const Fault fault : {Fault::Fails, Fault::ComesShort}) {
    std::set<std::size_t> counts;
    for (std::size_t number = 1; number <= operations; ++number) {
      files.failAt(number, fault);
      store.words.clearGlossaries();
      store.words.readGlossaries();
      EXPECT_NE(files.failed(), "");
      const Strings entries = store.entries();
      const auto graph = static_cast<std::size_t>(store.words.gGraphLast);
      EXPECT_TRUE(graph == half || entries.size() - graph == half) << "the other one is whole";
      counts.insert(entries.size() - half);
      for (std::size_t i = 0; i < entries.size(); ++i) {
        ASSERT_EQ(entries[i], whole[i < graph ? i : half + i - graph]) << number;
      }
    }
    EXPECT_GT(counts.size(), 3U) << "the lines of each piece that was read are there";
    files.failAt(0);
    store.words.clearGlossaries();
    store.words.readGlossaries();
    EXPECT_EQ(store.entries(), whole);
  }
}

TEST(Failures, AFileThatChangesBetweenItsReadingsGivesTheLinesThatWereCounted) {
  struct Case {
    std::string counted;
    std::optional<std::string> read;  // as the second reading finds it, if it is there
    Strings entries;
  };
  const std::string two = "S: a/---/S: b";
  const std::string longer(100'000, 'x');
  const std::array cases = {
      Case{two, two + "/---/S: c", {"S=a;|", "S=b;|"}},
      Case{two, two + "olt", {"S=a;|", "S=bolt;|"}},
      Case{two, "S: x/y/z/---/S: b", {"S=x;S=y;S=z;|"}},
      Case{two + "/C: n", "S: a/C: n/" + longer, {"S=a;|n/" + longer + "/"}},
      Case{two + "/---/S: c", two, {"S=a;|", "S=b;|"}},
      Case{two, "", {}},
      Case{two, std::nullopt, {}},
  };
  for (const Case& given : cases) {
    FaultyFiles files;
    Store store("", "S: tool", files);
    const auto write = [&](const std::optional<std::string>& text) {
      if (text) return store.folder.write("graphword.txt", *text);
      std::filesystem::remove(store.folder.path / "graphword.txt");
    };
    write(given.counted);
    files.beforeOpening = [&](std::size_t opening) {
      if (opening == 2) write(given.read);
    };
    files.failAt(0);
    store.words.clearGlossaries();
    store.words.readGlossaries();
    Strings expected = given.entries;
    expected.emplace_back("S=tool;|");
    EXPECT_EQ(store.entries(), expected) << given.read.value_or("gone").substr(0, 100);
  }
}

// Files of one line that comes again and again: a ¾, which is three letters, and a CR, which gives
// CR LF where lines are joined.
class LongFiles : public Files {
 public:
  static constexpr std::size_t kLetters = 5;  // of each line

  explicit LongFiles(std::size_t lines) : bytes_(2 * lines) {}

  std::size_t bytesRead() const { return bytesRead_; }

  std::unique_ptr<File> openToRead(const std::filesystem::path&) const override {
    return std::make_unique<LongFile>(*this);
  }
  std::unique_ptr<File> openToWrite(const std::filesystem::path&) const override { return nullptr; }

 private:
  class LongFile : public File {
   public:
    explicit LongFile(const LongFiles& files) : files_(files) {}

    std::optional<std::size_t> read(std::span<char> room) override {
      const std::size_t count = std::min(room.size(), files_.bytes_ - files_.bytesRead_);
      for (std::size_t i = 0; files_.bytesRead_ == 0 && i < room.size(); ++i) {
        room[i] = i % 2 == 0 ? '\xBE' : '\r';
      }
      files_.bytesRead_ += count;
      return count;
    }
    bool write(std::string_view) override { return false; }
    bool close() override { return true; }

   private:
    const LongFiles& files_;
  };

  std::size_t bytes_;
  mutable std::size_t bytesRead_ = 0;
};

TEST(Failures, AFileOfTooManyLettersIsReadUntilThatIsClear) {
  constexpr std::size_t kMostLines = kMostBytes / LongFiles::kLetters;
  FileMeasure measure;
  EXPECT_TRUE(measureFile(LongFiles(kMostLines), "file", measure));
  EXPECT_EQ(measure.lines, kMostLines);
  const LongFiles longer(10 * kMostLines);
  EXPECT_FALSE(measureFile(longer, "file", measure));
  EXPECT_LT(longer.bytesRead(), 2 * kMostLines + 100'000);
}

struct FaultySession : Desk {
  FaultySession() { app.files = &files; }

  struct Outcome {
    std::string parameters, wordList, messages;
  };

  // A session that reads and writes every file.
  Outcome session(std::size_t failing, Fault fault) {
    folder.write("graphword.txt", kGraph);
    folder.write("toolsword.txt", kTools);
    folder.write("Termvik.par", kParameters);
    folder.write("tmpWordList.txt", kWordList);
    messages.clear();
    files.failAt(failing, fault);
    play("start\noption optGlossary 2\ncall mnuCreateWordList_Click\nclose");
    EXPECT_EQ(folder.read("graphword.txt") + folder.read("toolsword.txt"), kGraph + kTools);
    return {folder.read("Termvik.par"), folder.read("tmpWordList.txt"), messages};
  }

  const std::string kGraph = "S: a/E: b/---/S: c";
  const std::string kTools = "S: d";
  const std::string kParameters = "GLOSSARYINDEX 2";
  const std::string kWordList = "an older one";
  FaultyFiles files;
};

TEST_F(FaultySession, TellsOfAListThatIsNotWrittenAndOfNothingElse) {
  const Outcome good = session(0, Fault::Fails);
  EXPECT_EQ(good.messages, "a/1 c/2 d/3 Ny ordlista i filen @/tmpWordList.txt|");
  EXPECT_EQ(good.wordList, "S: a/E: b/---/S: c/---/S: d/---/");
  const std::size_t operations = files.operations();
  for (const Fault fault : {Fault::Fails, Fault::ComesShort}) {
    for (std::size_t number = 1; number <= operations; ++number) {
      const Outcome outcome = session(number, fault);
      const std::string failed = files.failed();
      const bool ofList = failed.ends_with(" tmpWordList.txt");
      const bool ofGlossary = failed.ends_with("word.txt");
      const bool opensToWrite = failed.starts_with("open to write ");
      const std::string tells = ofList ? "Could not write the file @/" : "Ny ordlista i filen @/";
      EXPECT_TRUE(outcome.messages.ends_with(tells + "tmpWordList.txt|")) << failed;
      if (ofList && opensToWrite) {
        EXPECT_EQ(outcome.wordList, kWordList);
      } else if (ofList) {
        EXPECT_TRUE(good.wordList.starts_with(outcome.wordList)) << failed;
      } else if (!ofGlossary) {
        EXPECT_EQ(outcome.wordList, good.wordList) << failed;
      }
      if (failed == "open to write Termvik.par") {
        EXPECT_EQ(outcome.parameters, kParameters);
      } else if (failed == "write Termvik.par") {
        EXPECT_TRUE(good.parameters.starts_with(outcome.parameters));
      } else {
        EXPECT_EQ(outcome.parameters, good.parameters) << failed;
      }
    }
  }
}

TEST_F(FaultySession, ReadsNoMoreThan64KBytesOfAParameterFile) {
  constexpr std::size_t kMost = 1U << 16U;
  const std::string last = "GLOSSARYINDEX 1\r";
  folder.write("graphword.txt", "");
  folder.write("toolsword.txt", "");
  for (const std::size_t beyond : {0U, 1U, 2U, 20U}) {  // bytes of the last line
    std::string file = "GLOSSARYINDEX 0\r";
    file.append(kMost + beyond - file.size() - last.size() - 1, 'x').append("\r").append(last);
    folder.writeBytes("Termvik.par", file.append(200'000, '\r'));
    files.failAt(0);
    play("start");
    EXPECT_EQ(files.bytesRead(), kMost);
    EXPECT_TRUE(window().optionGroup(u"optGlossary").Value(beyond == 0 ? 1 : 0)) << beyond;
    play("close");
  }
}

}  // namespace termvik::test
