// SPDX-License-Identifier: MIT
// Tables and translation tools' glossaries, as people have them.
#include "run.h"

namespace termvik::test {

class Tables : public ToolTest {
 protected:
  // The entries of a table as TSV without its line of names; `|` parts the rows.
  std::string rows(const std::string& name, const std::string& content, Strings options = {}) {
    options.insert(options.end(), {"--to", "tsv"});
    const std::string tsv = converted(name, content, options);
    return tsv.empty() ? last.err : tsv;
  }
};

TEST_F(Tables, AreReadInEachEncodingDelimiterAndLineEnd) {
  const std::string expected = "S\tE\tC\nstål\tsteel\tx;y\n";
  const std::string text = "S;Engelska;Kommentar\r\nstål;steel;\"x;y\"\r\n";
  const Text wide = fromUtf8(text);
  std::string little = "\xFF\xFE";
  std::string big = "\xFE\xFF";
  for (const char16_t unit : wide) {
    little += {static_cast<char>(unit & 0xFFU), static_cast<char>(unit >> 8U)};
    big += {static_cast<char>(unit >> 8U), static_cast<char>(unit & 0xFFU)};
  }
  EXPECT_EQ(rows("a.csv", text), expected);
  EXPECT_EQ(rows("a.csv", "\xEF\xBB\xBF" + text), expected);
  EXPECT_EQ(rows("a.csv", encodeAnsi(wide)), expected);
  EXPECT_EQ(rows("a.csv", little), expected);
  EXPECT_EQ(rows("a.csv", big), expected);
  EXPECT_EQ(rows("a.csv", little.substr(2), {"--encoding", "utf-16le"}), expected);
  EXPECT_EQ(rows("a.CSV", replaced(text, "\r\n", "\r")), expected);
  EXPECT_EQ(rows("a.csv", replaced(text, "\r\n", "\n")), expected);
  EXPECT_EQ(rows("a.tab", replaced("S;E;C\nstål;steel;x|y", ";", "\t")),
            "S\tE\tC\nstål\tsteel\tx|y\n");
  EXPECT_EQ(rows("a.csv", text, {"--encoding", "Windows-1252"}), "S\tE\tC\nstÃ¥l\tsteel\tx;y\n");
  EXPECT_EQ(last.status, 0);
  EXPECT_EQ(rows("a.csv", encodeAnsi(wide), {"--encoding", "utf-8"}),
            "a.csv:2: error: this is no UTF-8\n");
  EXPECT_EQ(last.status, 2);
}

TEST_F(Tables, KnowTheirColumnsByName) {
  struct Case {
    std::string names;
    std::string columns;  // in the order of the cells; - where a cell is not taken
    int status = 0;
  };
  for (const Case& c : std::vector<Case>{{"S,E,D,F,C", "12345"},
                                         {"français,TYSKA,note,sv_SE,en-GB", "45213"},
                                         {" Swedish ,English,German,French,Comment", "12345"},
                                         {"Svenska,Engelska,Deutsch,Franska,KOMMENTAR", "12345"},
                                         {"sv,en,de,fr,c", "12345"},
                                         {"Status,de-AT,x,S,", "42", 1},
                                         {"S,E,sv,D,F", "", 2},
                                         {"a,b,x,y,z", "", 2},
                                         {"", "", 2}}) {
    std::string expected;
    for (const char cell : c.columns) expected += std::string(expected.empty() ? "" : "\t") + cell;
    const std::string tsv = rows("a.csv", c.names + "\n1,2,3,4,5\n");
    EXPECT_EQ(last.status, c.status) << c.names << last.err;
    if (c.status < 2) {
      EXPECT_EQ(tsv.substr(tsv.find('\n') + 1), expected + "\n") << c.names;
    }
  }
  EXPECT_EQ(rows("a.csv", "1,2,3", {"--columns", "E,_,S"}), "S\tE\n3\t1\n");
  EXPECT_EQ(run({"convert", "--columns", "E,en", "a.csv", "-", "--to", "tsv"}).status, 2);
  EXPECT_EQ(rows("a.csv", "1/2,3", {"--columns", "E,S", "--delimiter", "/"}), "S\tE\n2,3\t1\n");
}

TEST_F(Tables, TellWhatTheyPassOver) {
  EXPECT_EQ(rows("a.csv", "S,Status,E,C,\na,x,b\n\n,x\n,,,c\na,,,,,late,\nd,,,,odd\n\"e\"f\n"),
            "S\tE\na\tb\na\t\nd\t\nef\t\n");
  EXPECT_EQ(
      last.err,
      "a.csv:1: warning: the column 'Status' is passed over\n"
      "a.csv:5: warning: the row has a comment and no word; it is passed over\n"
      "a.csv:6: warning: the row has more cells than there are columns; 'late' is passed over\n"
      "a.csv:7: warning: column 5 has no name and is passed over\n"
      "a.csv:8: warning: text stands after a closing quote; it is taken as it is\n");
  EXPECT_EQ(last.status, 1);
  EXPECT_EQ(rows("a.csv", "S\na\n\"b\nc\n"),
            "a.csv:3: error: a cell begins with a quote and never ends\n");
  EXPECT_EQ(last.status, 2);
}

TEST_F(Tables, HoldSeveralWordsInACell) {
  EXPECT_EQ(rows("a.csv", "S,C\n a | b ||,  c | d \n\"a\n|b\"\"|c\",\"x\r\ny\"\n"),
            "S\tC\na|b\t  c | d \n\"a\n|b\"\"|c\"\t\"x\r\ny\"\n");
  EXPECT_EQ(last.status, 0);
  const std::string escaped =
      "S\n"
      R"(a\|b|c\\|d\\\|e|\f\|
\\|\\\\|\
)";
  EXPECT_EQ(rows("a.tsv", escaped), escaped);
  folder.writeBytes("b.tsv", escaped);
  EXPECT_EQ(run({"convert", "b.tsv", "b.txt"}).status, 0);
  EXPECT_EQ(folder.read("b.txt"),
            R"(b.tsv/---/S: a|b/S: c\/S: d\|e/S: \f|/---/S: \/S: \\/S: \/---/)");
}

TEST_F(Tables, AreWrittenForSpreadsheets) {
  folder.write("a.txt", "v/---/S: a/E: b,c/\"d/C: x/ y/---/F: f;g/---/");
  EXPECT_EQ(run({"convert", "a.txt", "a.csv"}).status, 0);
  EXPECT_EQ(bytes("a.csv"), "\xEF\xBB\xBFS,E,F,C\r\na,\"b,c|\"\"d\",,\"x\n y\"\r\n,,f;g,\r\n");
  folder.write("none.txt", "v");
  EXPECT_EQ(run({"convert", "none.txt", "-", "--to", "tsv"}).out, "S\tE\tD\tF\tC\n");
}

TEST_F(Tables, LeaveOutWordsOfOtherTypes) {
  folder.write("a.txt", "v/---/S: a/X: b/c/---/Y: d/C: e/---/");
  const Result result = run({"convert", "a.txt", "-", "--to", "tsv"});
  EXPECT_EQ(result.out, "S\na\n");
  EXPECT_EQ(result.err.substr(0, 18), "a.txt:4: warning: ");
  EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 2);
  EXPECT_EQ(result.status, 1);
}

TEST_F(Tables, OfATranslationToolHavePairsOfWords) {
  const Strings pair = {"--source", "s", "--target", "E"};
  Strings options = pair;
  options.insert(options.end(), {"--to", "glossary", "--title", "v"});
  EXPECT_EQ(
      converted("a.utf8", "#a\tb\tc\n#a\td\tc\n\n#a\te\n\tf\ng\nh \ti\t \tj\n\"k\"\tl\n", options),
      "v\r\n---\r\nS: #a\r\nE: b\r\nE: d\r\nC: c\r\n---\r\nS: #a\r\nE: e\r\n---\r\nS: h\r\nE: "
      "i\r\n---\r\nS: \"k\"\r\nE: l\r\n---\r\n");
  EXPECT_EQ(last.err,
            "a.utf8:5: warning: the row lacks its source or target; it is passed over\n"
            "a.utf8:6: warning: the row lacks its source or target; it is passed over\n"
            "a.utf8:7: warning: cells after the third one are passed over\n");
  options = pair;
  options.insert(options.end(), {"--to", "omegat"});
  EXPECT_EQ(converted("a.csv", "S,E,D,C\na|b,c|d,e,\"f\ng\"\nh\ti,j\n,k\n\"l\tm\",\n", options),
            "a\tc\tf g\na\td\tf g\nb\tc\tf g\nb\td\tf g\nh i\tj\n");
  EXPECT_EQ(last.err,
            "a.csv:2: warning: tabs and line ends in 'fU+000Ag' become blanks\n"
            "a.csv:4: warning: tabs and line ends in 'hU+0009i' become blanks\n"
            "termvik-glossary: note: 2 entries lack S or E; not written\n");
  EXPECT_EQ(last.status, 1);
}

}  // namespace termvik::test
