// SPDX-License-Identifier: MIT
// A glossary store over files in a scratch folder, and random texts. Texts are UTF-8.
#pragma once

#include <array>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "common/system/codepage.h"
#include "common/system/files.h"
#include "glossary/def_words.h"

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
  Store() : words(swedish(), folder.path, [](TextView) {}) {}
  explicit Store(const std::string& graph, const std::string& tools = "",
                 const Files& files = disk())
      : words(
            swedish(), folder.path, [](TextView) {}, files) {
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
  defWords words;
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

}  // namespace termvik::test
