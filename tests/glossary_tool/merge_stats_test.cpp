// SPDX-License-Identifier: MIT
// `merge` and `stats`.
#include "run.h"

namespace termvik::test {

class Merge : public ToolTest {
 protected:
  // The first table and the second one merged, without the line of names.
  std::string merged(const std::string& first, const std::string& second, Strings options = {}) {
    folder.writeBytes("a.csv", "S,E,D,C\n" + first);
    folder.writeBytes("b.csv", "S,E,D,C\n" + second);
    Strings arguments = {"merge", "a.csv", "b.csv", "-", "--to", "tsv"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    last = run(arguments);
    EXPECT_EQ(last.status, 0) << last.err;
    return last.out.substr(last.out.find('\n') + 1);
  }
};

TEST_F(Merge, WritesEqualEntriesOnce) {
  EXPECT_EQ(merged("a|b,c,,x\na,c,,x\n", "B|A|b,C,,x\na|b,c,,X\n\"a\",c,d\na,c,,x\n"),
            "a|b\tc\t\tx\na\tc\t\tx\na|b\tc\t\tX\na\tc\td\t\n");
  EXPECT_EQ(last.err,
            "a.csv: 2 entries read, 0 dropped, 0 joined\n"
            "b.csv: 4 entries read, 2 dropped, 0 joined\n");
  // The kinds of line ends in a comment are no difference.
  EXPECT_EQ(merged("a,,,\"x\ny\"\n", "a,,,\"x\r\ny\"\n"), "a\t\"x\ny\"\n");
}

TEST_F(Merge, JoinsEntriesThatShareWordsInTwoLanguages) {
  const Strings join = {"--join"};
  EXPECT_EQ(merged("a,b,c,x\nd,e,,y\na,b,f,x\n", "D|g,E,h,y\nk,B,C|l,z\nk,m,l,z\na,e,n,\n", join),
            "a|k\tb|m\tc|f|l\t\"x\nz\"\nd|g\te\th\ty\na\te\tn\t\n");
  EXPECT_EQ(last.err,
            "a.csv: 3 entries read, 0 dropped, 1 joined\n"
            "b.csv: 4 entries read, 0 dropped, 3 joined\n");
  // Two words of one language are not two languages; the first of several that fit is taken.
  EXPECT_EQ(merged("a|b,c\nd,e,f\nd,g,f\n", "a|b,x\n,e|g,f\n", join),
            "a|b\tc\t\nd\te|g\tf\na|b\tx\t\n");
}

TEST_F(Merge, HasTheFirstLineOfTheFirstGlossary) {
  folder.write("a.txt", "Mine/---/S: a/---/");
  folder.write("b.txt", "Yours/---/S: b/---/");
  folder.writeBytes("c.csv", "S\nc\n");
  EXPECT_EQ(run({"merge", "c.csv", "a.txt", "b.txt", "out.txt"}).status, 0);
  EXPECT_EQ(folder.read("out.txt"), "Mine/---/S: c/---/S: a/---/S: b/---/");
  EXPECT_EQ(run({"merge", "c.csv", "c.csv", "out.txt", "--force"}).status, 0);
  EXPECT_EQ(folder.read("out.txt"), "c.csv/---/S: c/---/");
}

TEST_F(Merge, CountsWhatStatsShows) {
  folder.write("a.txt", "v/---/S: a/b/E: c/C: x/---/S: A/a/E: long word/X: other/---/D: c/---/");
  folder.writeBytes("b.csv", "S,F\nb,b\n");
  const Result result = run({"stats", "a.txt", "b.csv"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "a.txt\n"
            "  entries                     3\n"
            "                              S        E        D        F\n"
            "  words                       4        2        1        0\n"
            "  entries without             1        1        2        3\n"
            "  doublets                    1        0        0        0\n"
            "  comments                    1\n"
            "  longest word                9  long word (E)\n"
            "\n"
            "b.csv\n"
            "  entries                     1\n"
            "                              S        E        D        F\n"
            "  words                       1        0        0        1\n"
            "  entries without             0        1        1        0\n"
            "  doublets                    0        0        0        0\n"
            "  comments                    0\n"
            "  longest word                1  b (S)\n"
            "\n"
            "all together\n"
            "  entries                     4\n"
            "                              S        E        D        F\n"
            "  words                       5        2        1        1\n"
            "  entries without             1        2        3        3\n"
            "  doublets                    2        0        0        0\n"
            "  comments                    1\n"
            "  longest word                9  long word (E)\n");
}

}  // namespace termvik::test
