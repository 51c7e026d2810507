// SPDX-License-Identifier: MIT
// From the bytes of the glossary files to the table of entries, and back.
#include <set>

#include "common/system/line_reader.h"
#include "support/desk.h"

namespace termvik::test {

static Strings linesOf(const std::filesystem::path& file) {
  LineReader reader(disk(), file);
  Strings lines;
  for (std::string_view line; reader.next(line);) lines.emplace_back(line);
  return lines;
}

TEST(Lines, EndAtCrLfAndAtALoneCr) {
  struct Case {
    std::string bytes;
    Strings lines;
  };
  const std::array cases = {
      Case{"", {}},
      Case{"a", {"a"}},
      Case{"a\r\nb\r\n", {"a", "b"}},
      Case{"a\r\nb", {"a", "b"}},
      Case{"a\rb\rc", {"a", "b", "c"}},
      Case{"ab\rcd\r", {"ab", "cd"}},
      Case{"ab\r\ncd\r", {"ab", "cd"}},
      Case{"a\r", {"a"}},
      Case{"\r", {""}},
      Case{"\r\n", {""}},
      Case{"a\r\r\nb", {"a", "", "b"}},
      Case{"\r\n\r\n a \r\n", {"", "", " a "}},
      // An LF without a CR before it is a character of the line.
      Case{"\n", {"\n"}},
      Case{"a\nb\r\n", {"a\nb"}},
      Case{"a\n\rb", {"a\n", "b"}},
  };
  const Folder folder;
  for (const Case& given : cases) {
    folder.writeBytes("file", given.bytes);
    EXPECT_EQ(linesOf(folder.path / "file"), given.lines) << testing::PrintToString(given.bytes);
  }
}

TEST(Lines, MayEndAnywhereInAnyBuffer) {
  const Folder folder;
  for (const std::string end : {"\r\n", "\r"}) {
    for (std::size_t length = (1U << 16U) - 4; length < (1U << 16U) + 3; ++length) {
      const std::string first(length, 'x');
      folder.writeBytes("file", std::string(first).append(end).append("y").append(end).append("z"));
      EXPECT_TRUE(linesOf(folder.path / "file") == (Strings{first, "y", "z"})) << length;
    }
  }
}

TEST(Lines, AreCountedAsTheyAreRead) {
  const Folder folder;
  Dice dice(7);
  for (int round = 0; round < 300; ++round) {
    std::string bytes(round < 30 ? (1U << 16U) - 15 : dice.below(600), 'x');
    for (int i = 0; i < 30; ++i) bytes += dice.oneOf(std::string_view("\r\r\n\nx"));
    if (round % 3 == 0) bytes.append(300, '\r');
    folder.writeBytes("file", bytes);
    FileMeasure measure;
    ASSERT_TRUE(measureFile(disk(), folder.path / "file", measure));
    ASSERT_EQ(measure.lines, linesOf(folder.path / "file").size()) << round;
    ASSERT_EQ(measure.bytes, bytes.size());
  }
}

// What the lines of a file hold when each run of lines between separators is read by itself.
static Strings plainEntries(const std::filesystem::path& file) {
  const auto empty = [](TextView text) { return swedish().textCompare(text, u"") == 0; };
  Strings entries;
  Text words, comment, type;
  bool counts = false;
  bool inComment = false;
  Strings lines = linesOf(file);
  lines.emplace_back("---");
  for (const std::string& bytes : lines) {
    const Text line(trimEnd(decodeAnsi(bytes)));
    const bool isWordLine = line.size() > 1 && line[1] == u':';
    if (swedish().textCompare(line.substr(0, 3), u"---") == 0) {
      if (counts) entries.push_back(flat(words.append(u"|").append(comment)));
      words = comment = type = u"";
      counts = inComment = false;
    } else if (swedish().textCompare(line.substr(0, 2), u"C:") == 0) {
      inComment = true;
      comment = trim(TextView(line).substr(2));
    } else if (inComment) {
      comment = empty(comment) ? line : comment.append(u"\r\n").append(line);
    } else if (isWordLine || !empty(line)) {
      counts = true;
      if (isWordLine) type = line.substr(0, 1);
      const Text word = isWordLine ? line.substr(std::min<std::size_t>(3, line.size())) : line;
      if (!type.empty()) words.append(type).append(u"=").append(word).append(u";");
    }
  }
  return entries;
}

TEST(Store, ReadsEachBlockByItselfWhateverStandsAroundIt) {
  const std::string pool =
      "---|---|--- x|--|||| |S: a|s:b|E: c|D:  d|S:|S: |word| w  |C: n |c:|C:  m|\t \t|::|: x| : |"
      "\xAD|C|-|X:yz|- -|----|  C:x|\xAD-|\xAD---|";
  Strings lines;
  std::istringstream parts(pool);
  for (std::string line; std::getline(parts, line, '|');) lines.push_back(line);
  Dice dice(3);
  for (int round = 0; round < 600; ++round) {
    std::string bytes;
    const bool junk = round % 4 == 0;
    for (std::size_t i = dice.below(junk ? 600 : 30); i > 0; --i) {
      if (junk && dice.below(3) > 0) bytes += static_cast<char>(dice.below(256));
      if (junk) bytes += dice.oneOf(std::string_view("\r\r\n-\n:SCE \0\t", 12));
      if (!junk) bytes += dice.oneOf(lines) + (dice.below(5) == 0 ? "\r" : "\r\n");
    }
    Store store;
    store.folder.writeBytes("graphword.txt", bytes);
    store.folder.writeBytes("toolsword.txt", bytes + "\r---\rS: end");
    store.words.readGlossaries();
    Strings expected = plainEntries(store.folder.path / "graphword.txt");
    const auto graph = static_cast<std::int32_t>(expected.size());
    for (auto& entry : plainEntries(store.folder.path / "toolsword.txt")) expected.push_back(entry);
    ASSERT_EQ(store.entries(), expected) << testing::PrintToString(bytes);
    ASSERT_EQ(expected.back(), "S=end;|");
    ASSERT_EQ(std::tuple(store.words.gGraphFirst, store.words.gGraphLast, store.words.gToolsFirst),
              std::tuple(1, graph, graph + 1));
  }
}

TEST(Store, TakesVeryLongLinesAndVeryManyEmptyBlocks) {
  Store store;
  std::string word = "long";
  while (word.size() < 10'000'000) word += word;
  std::string empty = "\r---\r";
  while (empty.size() < 1'500'000) empty += empty;
  store.folder.writeBytes("graphword.txt", std::string("S: ").append(word).append("\rb"));
  store.folder.writeBytes("toolsword.txt", empty + "S: end\r" + empty + "\r\n");
  store.words.readGlossaries();
  EXPECT_TRUE(store.entries() == (Strings{"S=" + word + ";S=b;|", "S=end;|"}));
}

TEST(Entry, IsReadWithTheWordsOfTheLanguageFirst) {
  struct Case {
    std::string file;
    TextView language;
    std::string article;
  };
  const std::array cases = {
      Case{"S: a/E: b/c/D: d/C: n/m", u"S", "S: a/E: b, c/D: d//n/m"},
      Case{"S: a/E: b/c/D: d", u"E", "E: b, c/S: a/D: d//"},
      Case{"S: a/E: b", u"F", "/S: a/E: b//"},
      // A type that comes again begins a new line, one that only differs in case does not.
      Case{"E: b/D: d/E: c", u"S", "/E: b/D: d/E: c//"},
      Case{"E: b/e: c/D: d", u"S", "/E: b, c/D: d//"},
      Case{"S: a/s: b/e: c/E: d", u"S", "S: a, b/e: c, d//"},
  };
  for (const Case& given : cases) {
    Store store(given.file);
    EXPECT_EQ(flat(store.words.gEntries(1).getArticle(given.language)), given.article)
        << given.file;
  }
}

TEST(Entry, IsWrittenAsABlockAtItsLowestWord) {
  struct Case {
    std::string row;
    std::string file;
    std::string block;
  };
  const std::string rich = "S: beta/alfa/E: alpha/D: Alpha/F: alpha/C: note";
  const std::array cases = {
      Case{"alfa", rich, "S: alfa/beta/E: alpha/D: Alpha/C: /note/"},
      Case{"beta", rich, ""},
      Case{"alfa ------DUBBLETT-", rich, ""},
      Case{"A", "S: b/a", "S: a/b/"},
      Case{"abc", "S: Abc/abc/ABC", "S: Abc/"},
      Case{"b", "S:/b", ""},
      Case{"x", "F: x", ""},
      Case{"x", "F: x/C: n", "C: /n/"},
      Case{"x", "D: z/s: x", "S: x/D: z/"},
      Case{"zzz", "E: q/E: p", "E: p/q/"},
      Case{"z", "S: ö/å/z/ä", "S: z/å/ä/ö/"},
      Case{"b", "S: b/C:/ x//", "S: b/C: / x//"},
  };
  for (const Case& given : cases) {
    Store store(given.file);
    EXPECT_EQ(flat(store.words.gEntries(1).articleForFile(u"SED", fromUtf8(given.row))),
              given.block)
        << given.row << " in " << given.file;
  }
}

TEST(Entry, SurvivesBeingWrittenAndReadAgain) {
  const auto before = [](TextView a, TextView b) { return swedish().textCompare(a, b) < 0; };
  const std::array lines = {"S: alfa",   "S: Alfa", "s: beta", "E: strasse", "E: Straße", "D: x y",
                            "F: zon",    "X: q",    " å",      "é",          "E: e",      "C: note",
                            "C:",        "",        "---",     "---",        "D:",        "- -",
                            "S:  alfa2", "D: Ö",    "S: zon"};
  Dice dice(4);
  for (int round = 0; round < 300; ++round) {
    std::string file;
    for (std::size_t i = dice.below(40); i > 0; --i) file += std::string(dice.oneOf(lines)) + "/";
    Store store(file);
    Strings expected;
    std::string written;
    for (std::int32_t index = 1; index <= store.words.gGraphLast; ++index) {
      const clsWEntry& entry = store.words.gEntries(index);
      written += flat(entry.articleForFile(u"SED", u"")) + "---/";
      Text all;
      for (const char16_t type : TextView(u"SED")) {
        std::set<Text, decltype(before)> words(before);  // of equal words it keeps the first
        for (std::int32_t i = 1; i <= entry.entryWordCount(); ++i) {
          const bool ofType = swedish().equal(entry.entryType(i), TextView(&type, 1));
          if (ofType && !entry.entryWord(i).empty()) words.emplace(entry.entryWord(i));
        }
        for (const Text& word : words) all.append({type, u'='}).append(word).append(u";");
      }
      if (!all.empty()) expected.push_back(flat(all.append(u"|").append(entry.entryComment())));
    }
    EXPECT_EQ(Store(written).entries(), expected) << file;
  }
}

}  // namespace termvik::test
