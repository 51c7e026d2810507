// SPDX-License-Identifier: MIT
// The program's own format, in and out.
#include "run.h"

namespace termvik::test {

class GlossaryOut : public ToolTest {
 protected:
  // A table as a glossary, `/` for CR LF, without its first line and separator.
  std::string glossary(const std::string& table, Strings options = {}) {
    options.insert(options.end(), {"--to", "glossary", "--title", "v"});
    const std::string text = converted("a.csv", table, options);
    const std::string begin = "v\r\n---\r\n";
    if (text.empty()) return last.err;
    EXPECT_EQ(text.substr(0, begin.size()), begin);
    return replaced(toUtf8(decodeAnsi(text.substr(begin.size()))), "\r\n", "/");
  }
};

TEST_F(GlossaryOut, HasTheLanguagesInOrderEachWordBehindItsMark) {
  folder.write("a.txt", "First  /---/junk/X: 1/f: 2/D: 3/x/S: 4/Y: 5/e: 6/C:/ c/---/---/F: 7");
  EXPECT_EQ(run({"convert", "a.txt", "b.txt"}).err,
            "a.txt:3: warning: 'junk' stands ahead of the first word [lost-line]\n");
  EXPECT_EQ(folder.read("b.txt"),
            "First/---/S: 4/E: 6/D: 3/D: x/F: 2/X: 1/Y: 5/C:/ c/---/F: 7/---/");
}

TEST_F(GlossaryOut, MendsWhatTheFormatCannotHold) {
  EXPECT_EQ(glossary("S,C\n\"a\r\n\nb \nc\",\n\"\n\",x\nd,\"\n\n e \n---f\nC:g\nc: h\n i\n\"\n"),
            "S: a  b  c/---/S: d/C:/ e/ ---f/ C:g/ c: h/ i//---/");
  EXPECT_EQ(last.err,
            "a.csv:2: warning: the line end in 'aU+000DU+000AU+000Ab U+000Ac' becomes a blank\n"
            "a.csv:6: warning: the line end in 'U+000A' becomes a blank\n"
            "a.csv:11: warning: '---f' would end the entry; it gets a blank in front\n"
            "a.csv:12: warning: 'C:g' would begin a new comment; it gets a blank in front\n"
            "a.csv:13: warning: 'c: h' would begin a new comment; it gets a blank in front\n"
            "a.csv:6: warning: no word of the entry is left; its comment is left out as well\n");
  EXPECT_EQ(last.status, 1);
  EXPECT_EQ(glossary("S,C\na,---b\nc,\" \n \"\n"), "S: a/C: ---b/---/S: c/---/");
  EXPECT_EQ(last.status, 0);
}

TEST_F(GlossaryOut, TellsEachCharacterThatTheCodePageLacks) {
  const std::string table = "S,E,C\nłódź,ok,\"a\nб😀б\"\n€,Œ,\n";
  EXPECT_EQ(glossary(table),
            "a.csv:2: error: U+0142 ł is not in Windows-1252\n"
            "a.csv:2: error: U+017A ź is not in Windows-1252\n"
            "a.csv:3: error: U+0431 б is not in Windows-1252\n"
            "a.csv:3: error: U+1F600 😀 is not in Windows-1252\n");
  EXPECT_EQ(last.status, 2);
  EXPECT_EQ(run({"convert", "a.csv", "b.txt"}).status, 2);
  EXPECT_FALSE(exists("b.txt"));
  EXPECT_EQ(glossary(table, {"--lossy"}), "S: ?ód?/E: ok/C: a/\?\?\?/---/S: €/E: Œ/---/");
  EXPECT_EQ(last.status, 1);
  EXPECT_NE(last.err.find("a.csv:3: warning: U+1F600 😀"), std::string::npos);
}

TEST_F(GlossaryOut, TakesItsFirstLineFromTheOptionTheInputOrItsName) {
  struct Case {
    std::string name;
    std::string content;
    std::string first;
  };
  for (const Case& c : std::vector<Case>{{"a.txt", "Mine å\n---\nS: a", "Mine å"},
                                         {"b.txt", "S: a", "b.txt"},
                                         {"c.txt", "---\nS: a", "c.txt"},
                                         {"d.txt", "c: x\nS: b\n---\nS: a", "d.txt"},
                                         {"e.txt", "", "e.txt"},
                                         {"Ł å.csv", "S\na", "? å.csv"},
                                         {"---.csv", "S\na", " ---.csv"}}) {
    folder.writeBytes("x", c.content);
    std::filesystem::rename("x", std::filesystem::path(fromUtf8(c.name)));
    EXPECT_NE(run({"convert", c.name, "out.txt", "--force"}).status, 2) << c.name;
    EXPECT_EQ(toUtf8(decodeAnsi(folder.read("out.txt"))).substr(0, c.first.size() + 1),
              c.first + "/");
  }
  for (const std::string title : {"S: a", "---", "c:", "a\nb", "ł"}) {
    EXPECT_EQ(run({"convert", "a.txt", "-", "--to", "glossary", "--title", title}).status, 2)
        << title;
  }
  EXPECT_EQ(run({"convert", "a.txt", "-", "--to", "glossary", "--title", "[x]"}).out.substr(0, 5),
            "[x]\r\n");
}

TEST_F(GlossaryOut, MendsAFileThatTheProgramWouldTakeForOneLine) {
  folder.writeBytes("a.txt", "Första\n---\nS: st\xC3\xA5l\nC: x\r\ry\n---\n");
  EXPECT_EQ(run({"check", "a.txt"}).status, 1);
  EXPECT_EQ(run({"convert", "a.txt", "b.txt"}).status, 0);
  EXPECT_EQ(run({"check", "b.txt"}).out, "b.txt: 1 entry, 0 errors, 0 warnings\n");
  EXPECT_EQ(bytes("b.txt"), "F\xF6rsta\r\n---\r\nS: st\xE5l\r\nC: x\r\n\r\ny\r\n---\r\n");
}

}  // namespace termvik::test
