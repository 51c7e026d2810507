// A desk to try the program at: a scratch folder for its files, a user of the memory toolkit who
// takes the replay tool's commands, and short words for what that user sees. Texts are UTF-8.
#pragma once

#include <array>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "app/program.h"
#include "common/codepage.h"
#include "common/files.h"
#include "player.h"
#include "toolkit/user.h"

namespace termvik::test {

using Strings = std::vector<std::string>;

inline const Collation& swedish() {
  static const Collation collation("sv_SE");
  return collation;
}

inline std::string replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

// One line for a text of many: `/` stands for CR LF.
inline std::string flat(TextView text) { return replaced(toUtf8(text), "\r\n", "/"); }

// Each row as `word/number `.
inline std::string rowsText(const SortedRows& rows) {
  std::string all;
  for (std::int32_t i = 0; i < rows.count(); ++i) {
    all += toUtf8(rows.text(i)) + "/" + std::to_string(rows.itemData(i)) + " ";
  }
  return all;
}

// A table: cases of what is given => what `answer` makes of it, each closed by ` ;; `.
template <class Answer>
void expectTable(const std::string& table, Answer answer) {
  std::size_t at = 0;
  for (std::size_t end = 0; (end = table.find(" ;; ", at)) != std::string::npos; at = end + 4) {
    const std::string line = table.substr(at, end - at);
    const std::size_t arrow = line.find(" => ");
    EXPECT_EQ(answer(line.substr(0, arrow)), line.substr(arrow + 4)) << line.substr(0, 200);
  }
  EXPECT_EQ(at, table.size());
}

struct Folder {
  Folder() { std::filesystem::create_directories(path); }
  ~Folder() { std::filesystem::remove_all(path); }
  void writeBytes(std::string_view name, std::string_view bytes) const {
    std::ofstream(path / name, std::ios::binary) << bytes;
  }
  // In the code page of the files; `/` stands for CR LF.
  void write(std::string_view name, const std::string& text) const {
    writeBytes(name, replaced(encodeAnsi(fromUtf8(text)), "/", "\r\n"));
  }
  std::string read(std::string_view name) const {
    std::ifstream file(path / name, std::ios::binary);
    return replaced({std::istreambuf_iterator<char>(file), {}}, "\r\n", "/");
  }

  // Its name is one that no 8-bit code page can write.
  std::filesystem::path path =
      fileIn(std::filesystem::temp_directory_path(),
             u"Ordböcker Ł " + fromUtf8(std::to_string(std::random_device{}())));
};

// A glossary store over two files of its own.
struct Store {
  Store() = default;
  explicit Store(const std::string& graph, const std::string& tools = "") {
    folder.write("graphword.txt", graph);
    folder.write("toolsword.txt", tools);
    words.readGlossaries();
  }

  // Each entry as `S=word;E=word;|comment`.
  Strings entries() {
    Strings all;
    for (std::int32_t index = 1; index <= words.gToolsLast; ++index) {
      const clsWEntry& entry = words.gEntries(index);
      Text text;
      for (std::int32_t i = 1; i <= entry.entryWordCount(); ++i) {
        text.append(entry.entryType(i)).append(u"=").append(entry.entryWord(i)).append(u";");
      }
      all.push_back(flat(text.append(u"|").append(entry.entryComment())));
    }
    return all;
  }

  Folder folder;
  defWords words{swedish(), folder.path, [](TextView) {}};
};

class Desk : public testing::Test {
 protected:
  Desk() {
    app.Path = folder.path;
    user->seesMessage = [this](TextView prompt, TextView) {
      messages += rows() + replaced(flat(prompt), flat(pathText(folder.path / "")), "@/") + "|";
    };
  }

  // Commands of the replay tool, one a line.
  void play(const std::string& commands) {
    std::istringstream lines(commands);
    for (std::string line; std::getline(lines, line);) player.play(line);
  }
  void open(const std::string& graph, const std::string& tools = "") {
    folder.write("graphword.txt", graph);
    folder.write("toolsword.txt", tools);
    play("start\noption optGlossary 2");
  }

  Window& window() { return *user->toolkit().Forms().at(0); }
  ListBox& list() { return window().listBox(u"lstWords"); }
  TextBox& search() { return window().textBox(u"txtSearch"); }
  std::string rows() { return rowsText(list().rows()); }
  std::string article() { return flat(window().textBox(u"txtArticle").text()); }

  Folder folder;
  App app;
  std::string messages;  // each behind the rows of its moment; @/ is the folder
  std::ostringstream out;
  std::unique_ptr<User> user = makeMemoryUser(swedish(), {28800, 16200});
  replay::Player player{*user, swedish(), app, out};
};

// Random choices, the same in every run and on every platform.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}

  std::size_t below(std::size_t limit) { return engine_() % limit; }
  template <class Choices>
  auto oneOf(const Choices& choices) {
    return choices[below(choices.size())];
  }
  Text text(TextView alphabet, std::size_t most) {
    Text text;
    for (std::size_t length = below(most + 1); length > 0; --length) text += oneOf(alphabet);
    return text;
  }
  Text anyText(std::size_t most) {
    static const Text codePage = ansiCharacters();
    return text(oneOf(std::array<TextView, 3>{kHard, kOutside, codePage}), most);
  }

  // What is hard to compare, close together, so that it meets often; and the same with what no file
  // can hold: accents of their own, half and whole surrogate pairs, letters of other scripts.
  static constexpr TextView kHard = u"aAåäbsSßæœeéElL·-. \u00ADoôöuüvw";
  static constexpr TextView kOutside =
      u"aaAsßelL·\u0301\u0301\u030A\u0323ſﬁŀл\u1E9E\xD83D\xDE00\xD800 \u00ADo";

 private:
  std::mt19937 engine_;
};

// A term occurs in a text when some stretch of the text equals it.
inline bool occursPlainly(const Collation& collation, TextView term, TextView text) {
  for (std::size_t from = 0; from < text.size(); ++from) {
    for (std::size_t length = 1; from + length <= text.size(); ++length) {
      if (collation.textCompare(text.substr(from, length), term) == 0) return true;
    }
  }
  return false;
}

}  // namespace termvik::test
