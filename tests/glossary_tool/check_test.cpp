// SPDX-License-Identifier: MIT
// What `check` says of a glossary, and whether the program agrees.
#include <set>

#include "run.h"

namespace termvik::test {

class Check : public ToolTest {
 protected:
  // The findings of a file, each as `LINE severity CODE`, and its last line without the name.
  std::string findings(const std::string& bytes, const Strings& options = {}) {
    folder.writeBytes("a.txt", bytes);
    Strings arguments = {"check", "a.txt"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Result result = run(arguments);
    EXPECT_EQ(result.err, "");
    std::istringstream lines(result.out);
    std::string all;
    for (std::string line; std::getline(lines, line);) {
      EXPECT_TRUE(line.starts_with("a.txt:")) << line;
      line.erase(0, 6);
      if (!line.ends_with("]")) {
        EXPECT_EQ(result.status, line.ends_with(" 0 errors, 0 warnings") ? 0 : 1) << line;
        return all + line;
      }
      const std::size_t severity = line.find(": ") + 2;
      all += line.substr(0, severity - 2) + " ";
      all += line.substr(severity, line.find(':', severity) - severity) + " ";
      all += line.substr(line.rfind('[') + 1);
      all.back() = ';';
    }
    ADD_FAILURE() << "no last line";
    return all;
  }

  // Of blocks that follow a version line; `/` stands for CR LF.
  std::string inBlocks(const std::string& blocks) {
    return findings(replaced("v/---/" + encodeAnsi(fromUtf8(blocks)), "/", "\r\n"));
  }
};

TEST_F(Check, IsSilentAboutWhatIsWell) {
  EXPECT_EQ(inBlocks("S: å/word//s: b/E: c/C: x/E :y//---//---/F: d"),
            " 2 entries, 0 errors, 0 warnings");
  EXPECT_EQ(inBlocks("S: a"), " 1 entry, 0 errors, 0 warnings");
  EXPECT_EQ(run({"a.txt"}).out, "a.txt: 1 entry, 0 errors, 0 warnings\n");
}

TEST_F(Check, TellsTheLineOfEachFinding) {
  struct Case {
    std::string blocks;  // the first of their lines is line 3
    std::string findings;
  };
  const std::string lost = " 1 entry, 1 error, 0 warnings";
  const std::string odd = " 1 entry, 0 errors, 1 warning";
  for (const Case& c : std::vector<Case>{
           {"S:ord", "3 error lost-letter;" + lost},
           {"S: a/X:\tord", "4 error lost-letter;4 warning word-type; 1 entry, 1 error, 1 warning"},
           {"junk//S: a", "3 error lost-line;" + lost},
           {"S: a/---/junk/---", "5 error lost-line;" + lost},
           {"S: a/---/C: b/c/---", "5 error lost-block;" + lost},
           {"C: b/S: a/---/S: a",
            "3 error lost-block;4 warning word-in-comment; 1 entry, 1 error, 1 warning"},
           {"S: a/C: b/c/C: d", "6 error lost-comment;" + lost},
           {"S: a/C: b/f: c/X: d", "5 warning word-in-comment;" + odd},
           {"S: a/x: b/c", "4 warning word-type;" + odd},
           {"S: a/E:  /D: ",
            "4 warning empty-word;5 warning empty-word; 1 entry, 0 errors, 2 warnings"},
           {"S: Straße/E: b/STRASSE/s: strasse", "6 warning same-word;" + odd},
           {"S: a\x01\x02/E: \x7f",
            "3 warning control;4 warning control; 1 entry, 0 errors, 2 warnings"},
           {"S:  a/ b/E: c\t/d\te",
            "3 warning blanks;4 warning blanks;5 warning blanks; 1 entry, 0 errors, 3 warnings"},
           {"S:/---/junk/C: b",
            "1 error no-entries;3 warning empty-word;5 error lost-line;6 error lost-block; 0 "
            "entries, 3 "
            "errors, 1 warning"}}) {
    EXPECT_EQ(inBlocks(c.blocks), c.findings) << c.blocks;
  }
}

TEST_F(Check, FindsAWordThatStandsTwiceAmongVeryMany) {
  std::string words;
  for (int i = 0; i < 2000; ++i) words += "word " + std::to_string(i) + "/";
  EXPECT_EQ(inBlocks("S: x/" + words + "WORD 7/E: word 8"),
            "2004 warning same-word; 1 entry, 0 errors, 1 warning");
}

TEST_F(Check, TellsWhatTheBytesAre) {
  struct Case {
    std::string bytes;
    std::string findings;
  };
  for (const Case& c : std::vector<Case>{
           {"", "1 error no-entries; 0 entries, 1 error, 0 warnings"},
           {"v\r\n---\r\nS: st\xC3\xA5l\r\n", "3 error encoding; 1 entry, 1 error, 0 warnings"},
           {"v\r\n---\r\nS: st\xE5l \xC3\xA5\r\n", " 1 entry, 0 errors, 0 warnings"},
           {"\xEF\xBB\xBFv\r---\rS: a", "1 error encoding; 1 entry, 1 error, 0 warnings"},
           {std::string("v\0\r\0\n\0S\0:\0 \0a\0", 14),
            "1 error encoding; 0 entries, 1 error, 0 warnings"},
           {std::string("\xFE\xFF\0S", 4), "1 error encoding; 0 entries, 1 error, 0 warnings"},
           {"v\n---\nS: a\n",
            "1 error line-ends;1 error no-entries; 0 entries, 2 errors, 0 warnings"},
           {"v\r\n---\rS: a\nE:b\n\r\nF:c",
            "3 error line-ends;6 error lost-letter; 1 entry, 2 errors, 0 warnings"},
           {"v\r---\rS: \x81\rE: \x9D \x8F\n\x90\r",
            "3 warning control;4 error line-ends;4 warning control;5 warning control; 1 entry, 1 "
            "error, 3 warnings"},
           {"S: a\r\n---", "1 warning first-line; 1 entry, 0 errors, 1 warning"}}) {
    EXPECT_EQ(findings(c.bytes), c.findings) << testing::PrintToString(c.bytes);
  }
  EXPECT_NE(run({"check", "-"}, "v\r---\rS: st\xC3\xA5l").out.find("-:3: error: "),
            std::string::npos);
}

TEST_F(Check, TellsOfDoubletsOverAllFilesAndOfMissingLanguages) {
  folder.write("a.txt", "v/---/S: Ord/E: same/F: x/D: y/---/S: b/E: ORD/---/S: ORD/ord");
  folder.write("b.txt", "S: c/E: Same/X: ord/---/X: ord");
  const Result result = run({"check", "--doublets", "--missing", "a.txt", "b.txt"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out,
            "a.txt:3: note: 'Ord' stands also at a.txt:11, a.txt:12 [doublet]\n"
            "a.txt:4: note: 'same' stands also at b.txt:2 [doublet]\n"
            "a.txt:8: note: the entry has no word in D, F [missing]\n"
            "a.txt:11: note: the entry has no word in E, D, F [missing]\n"
            "a.txt:11: note: 'ORD' stands also at a.txt:3 [doublet]\n"
            "a.txt:12: warning: 'ord' stands in this entry already [same-word]\n"
            "a.txt:12: note: 'ord' stands also at a.txt:3 [doublet]\n"
            "a.txt: 3 entries, 0 errors, 1 warning\n"
            "b.txt:1: warning: the file begins with a word; the version report shows this line "
            "[first-line]\n"
            "b.txt:1: note: the entry has no word in D, F [missing]\n"
            "b.txt:2: note: 'Same' stands also at a.txt:4 [doublet]\n"
            "b.txt:3: warning: 'X:' stands for no language [word-type]\n"
            "b.txt:5: warning: 'X:' stands for no language [word-type]\n"
            "b.txt:5: note: the entry has no word in S, E, D, F [missing]\n"
            "b.txt: 2 entries, 0 errors, 3 warnings\n");
}

// Lines of every kind, each with a number of its own, so that it can be found in what the program
// has made of the file.
TEST_F(Check, CallsLostWhatTheProgramDoesNotShowAndNothingElse) {
  const Strings kinds = {"---",  "---", "S: a", "e: b", "X: c", "word",
                         "C: d", "",    "C:",   "- e",  " f"};
  Dice dice(11);
  for (int round = 0; round < 400; ++round) {
    Strings lines = {"v1v"};
    for (std::size_t i = dice.below(20); i > 0; --i) {
      std::string line = dice.oneOf(kinds);
      if (!line.empty() && line != "---" && line != "C:")
        line += "#" + std::to_string(lines.size() + 1) + "#";
      lines.push_back(line);
    }
    std::string file;
    for (const std::string& line : lines) file += line + "/";
    Store store(file);
    std::string shown;
    std::size_t withWord = 0;
    for (const std::string& entry : store.entries()) {
      if (entry.starts_with("|")) continue;  // it has no word
      shown += entry;
      ++withWord;
    }

    std::set<std::size_t> lost;
    std::istringstream found(findings(replaced(file, "/", "\r\n")));
    for (std::string finding; std::getline(found, finding, ';');) {
      if (finding.find(" error lost-") == std::string::npos) {
        if (finding.starts_with(" ")) {
          EXPECT_TRUE(finding.starts_with(" " + std::to_string(withWord) + " entr")) << file;
        }
        continue;
      }
      std::size_t line = std::stoul(finding);
      if (finding.ends_with("lost-line")) lost.insert(line);
      if (finding.ends_with("lost-block")) {
        for (; line <= lines.size() && lines[line - 1] != "---"; ++line) lost.insert(line);
      }
      if (finding.ends_with("lost-comment")) {
        do lost.insert(--line);
        while (!lines[line - 1].starts_with("C:"));
      }
    }
    for (std::size_t line = 2; line <= lines.size(); ++line) {
      if (lines[line - 1].find('#') == std::string::npos) continue;
      const bool isShown = shown.find("#" + std::to_string(line) + "#") != std::string::npos;
      EXPECT_EQ(isShown, lost.count(line) == 0) << file << line;
    }
  }
}

}  // namespace termvik::test
