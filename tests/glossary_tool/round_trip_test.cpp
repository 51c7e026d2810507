// SPDX-License-Identifier: MIT
// Random entries through every format and back, and random damage to files of every format.
#include "files_in_out.h"
#include "glossary_file.h"
#include "run.h"

namespace termvik::test {

using tool::Entry;
using tool::WordList;

class RoundTrip : public ToolTest {
 protected:
  // A text of one line that neither begins nor ends with a blank or tab.
  Text word(TextView alphabet) {
    const auto isEdge = [](char16_t c) { return c == u' ' || c == u'\t'; };
    Text word;
    while (word.empty() || isEdge(word.front()) || isEdge(word.back()))
      word = dice.text(alphabet, 8);
    return word;
  }

  Entry entry(WordList& list, TextView alphabet, std::size_t mostWords) {
    Entry entry;
    for (const char16_t type : tool::kLanguages) {
      for (std::size_t i = dice.below(mostWords + 1); i > 0; --i) {
        entry.words.push_back({list.keep(word(alphabet)), {}, type});
      }
    }
    if (entry.words.empty()) entry.words.push_back({list.keep(word(alphabet)), {}, u'S'});
    return entry;
  }

  // The bytes of a list as a glossary, after what mending it takes; `told` is what is told of that.
  std::string glossary(WordList& list, bool lossy, std::string& told) {
    std::ostringstream out;
    std::ostringstream err;
    std::istringstream in;
    tool::Streams streams{.in = in, .out = out, .err = err};
    tool::Messages messages(err, false);
    messages.addInput("x");
    tool::Title title{u"v", {}};
    tool::mendForGlossary(list, title, lossy, swedish(), messages);
    tool::Output output("-", {}, false, streams);
    tool::writeGlossary(list, title.text, output);
    output.commit();
    told = err.str();
    return out.str();
  }

  // Each entry as Store::entries gives it.
  static Strings entriesOf(const WordList& list) {
    Strings all;
    for (const Entry& entry : list.entries) {
      Text text;
      for (const tool::Word& word : entry.words) {
        text.append({word.type, u'='}).append(word.text).append(u";");
      }
      Text room;
      all.push_back(toUtf8(text.append(u"|").append(tool::commentText(entry, room))));
    }
    return all;
  }

  Dice dice{5};
};

TEST_F(RoundTrip, OfAGlossaryWrittenGivesTheProgramExactlyTheseEntries) {
  static constexpr TextView kAny = u"aÅß€ ---C:::cSs|\\\"\t\r\n\n\n\u00AD\u0081\u0142\xD83D\x01";
  for (int round = 0; round < 500; ++round) {
    WordList list;
    for (std::size_t i = dice.below(5); i > 0; --i) {
      Entry made = entry(list, kAny, 2);
      for (std::size_t pieces = dice.below(3); pieces > 0; --pieces) {
        made.comment.push_back({list.keep(dice.text(kAny, 20)), {}});
      }
      list.entries.push_back(std::move(made));
    }
    std::string told;
    Store store;
    store.folder.writeBytes("graphword.txt", glossary(list, true, told));
    store.words.readGlossaries();
    Strings shown = store.entries();
    ASSERT_FALSE(shown.empty());
    EXPECT_EQ(shown.front(), "|");  // the first line stands in a block of its own
    shown.erase(shown.begin());
    for (std::string& text : shown) text = replaced(text, "/", "\n");
    Strings expected = entriesOf(list);
    for (std::string& text : expected) text = replaced(text, "/", "\n");
    ASSERT_EQ(shown, expected) << round;
  }
}

TEST_F(RoundTrip, ThroughEachFormatGivesTheSameGlossary) {
  static constexpr TextView kWord = u"aÅß€Œ  |\\\\\\\"\",;\t<>&'-:C\u00A0\u00AD";
  static constexpr TextView kComment = u"aÅß€ |\\\",;\t<>&\n\n-:";
  for (int round = 0; round < 300; ++round) {
    WordList list;
    for (std::size_t i = dice.below(5) + 1; i > 0; --i) {
      Entry made = entry(list, kWord, 3);
      if (dice.below(2) == 0) {
        const Text comment = u"x" + dice.text(kComment, 12) + u"x";
        made.comment.push_back({list.keep(comment), {}});
      }
      list.entries.push_back(std::move(made));
    }
    std::string told;
    const std::string original = glossary(list, false, told);
    if (!told.empty()) continue;  // a comment that had to be mended
    folder.writeBytes("a.txt", original);
    for (const std::string format : {"glossary", "tsv", "csv", "tbx"}) {
      // Random letters of the code page can look like UTF-8.
      const std::string from = format == "glossary" ? "windows-1252" : "utf-8";
      const Result there =
          run({"convert", "a.txt", "b", "--to", format, "--force", "--encoding", "windows-1252"});
      const Result back = run({"convert", "b", "-", "--from", format, "--to", "glossary", "--title",
                               "v", "--encoding", from});
      ASSERT_EQ(there.err + back.err, "");
      ASSERT_EQ(back.out, original) << format << " " << round;
    }
  }
}

TEST_F(RoundTrip, ThroughPairsOfWordsGivesTheSamePairs) {
  static constexpr TextView kWord = u"aÅß€ |\\\"#,;";
  for (int round = 0; round < 100; ++round) {
    std::string rows;
    Text before;
    for (std::size_t i = dice.below(6) + 1; i > 0; --i) {
      Text source;
      while (source.empty() || source == before) source = word(kWord);
      before = source;
      const std::string comment = dice.below(2) == 0 ? "" : "\t" + toUtf8(word(kWord));
      Text target;
      for (std::size_t targets = dice.below(3) + 1; targets > 0; --targets) {
        Text next;
        while (next.empty() || next == target) next = word(kWord);
        target = next;
        rows += toUtf8(source) + "\t" + toUtf8(target) + comment + "\n";
      }
    }
    folder.writeBytes("a.utf8", rows);
    const Strings pair = {"--source", "D", "--target", "F"};
    ASSERT_EQ(run({"convert", "a.utf8", "b.txt", "--force", "--source", "D", "--target", "F"}).err,
              "");
    ASSERT_EQ(run({"convert", "b.txt", "-", "--to", "omegat", "--source", "D", "--target", "F",
                   "--encoding", "windows-1252"})
                  .out,
              rows);
  }
}

// Takes what reads and writes through all its branches; the sanitizers watch.
TEST_F(RoundTrip, NoDamageToAFileDoesMoreThanFail) {
  const std::string text =
      "v\r\n---\r\nS: a\r\nb\r\nE: c\r\nX: d\r\nC: e\r\n f\r\n---\r\nD: \xFC\r\nF: "
      "\xC3\xA9\r\n---\r\n";
  const std::string tbx =
      "<?xml version='1.0' encoding='UTF-8'?><!DOCTYPE martif SYSTEM 'x' [<!ENTITY e 'f'>]>"
      "<martif><text><body><termEntry><descrip type='definition'>d</descrip><langSet xml:lang='sv'>"
      "<tig><term>a&e;</term></tig></langSet><note> n </note></termEntry></body></text></martif>";
  const std::map<std::string, std::string> seeds = {
      {"glossary", text},
      {"csv", "\xEF\xBB\xBFS;E;\"C\"\r\na|b\\|c;\"d\"\"\r\ne\";f\r\n;;g;h\r\n"},
      {"tsv", "sv\ten-GB\tNote\na\tb|\\\\|c\td\n"},
      {"tbx", tbx},
      {"omegat", "a\tb\tc\na\td\tc\n\te\n\nf\tg\th\ti\n"}};
  const Strings tokens = {"\"",
                          "|",
                          "\\",
                          "\t",
                          "\r",
                          "\n",
                          "\r\n",
                          ";",
                          std::string(1, '\0'),
                          "---",
                          "C:",
                          "\nS: ",
                          "<",
                          ">",
                          "&e;",
                          "</term>",
                          "<term>",
                          "\xEF\xBB\xBF",
                          "\xFF\xFE",
                          "\xC3",
                          "\xED\xA0\x80",
                          "<note>",
                          "</termEntry>",
                          "S,E\n"};
  for (const auto& [format, seed] : seeds) {
    for (int round = 0; round < 200; ++round) {
      std::string damaged = seed;
      for (std::size_t i = dice.below(6) + 1; i > 0; --i) {
        const std::size_t at = dice.below(damaged.size() + 1);
        const std::size_t kind = dice.below(4);
        if (kind == 0) damaged.insert(at, dice.oneOf(tokens));
        if (kind == 1) damaged.erase(at, dice.below(8));
        if (kind == 2 && at < damaged.size()) damaged[at] = static_cast<char>(dice.below(256));
        if (kind == 3) damaged.insert(at, damaged.substr(dice.below(damaged.size() + 1), 30));
      }
      folder.writeBytes("a", damaged);
      run({"check", "--doublets", "--missing", "a"});
      for (const std::string to : {"glossary", "csv", "tbx", "omegat"}) {
        std::filesystem::remove("out");
        const Result result = run({"merge", "--join", "--lossy", "--from", format, "--to", to,
                                   "--source", "S", "--target", "E", "a", "out"});
        ASSERT_EQ(exists("out"), result.status != 2) << testing::PrintToString(damaged);
      }
    }
  }
}

}  // namespace termvik::test
