// SPDX-License-Identifier: MIT
#include "sample_glossary.h"

#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/system/codepage.h"

namespace termvik::bench {

namespace {

using Path = std::filesystem::path;

// What the syllables of a language are made of: parts between blanks, each as often as it is used.
// `-` is no sound at all.
struct Sounds {
  TextView head;  // of a line that begins with a word of the language
  TextView onsets;
  TextView vowels;
  TextView codas;
};

constexpr std::array<Sounds, 4> kLanguages{{
    {u"S: ",
     u"b b br d d dr f f fl fr g g gr h h j k k kl kr kv l l m m n n p p pl pr r r s s s sk skr "
     u"sl sm sn sp st st str t t tr v v -",
     u"a a a a a a a e e e e e e e i i i i o o o u u y å ä ö",
     u"- - - - - n n n r r r l l t t s d k m ng st nd rk ck ll"},
    {u"E: ",
     u"b bl br c c ch cl d d f fl g gr h h j k l l m m n p p ph pr qu r r s s s sh sp st t t th tr "
     u"v w wh -",
     u"a a a a e e e e e e i i i i o o o u ea ee ou y",
     u"- - - - - n n r r l t t s s d ck m ng nt st ll x"},
    {u"D: ",
     u"B b D d F fr G g H h J k K kl l L M n pf R s S s sch Sch schl Sp st t T tr v w W z Z zw -",
     u"a a a a a e e e e e e e e e e i i i i i o o o u u u ei ei au ie ä ö ü",
     u"- - - - - n n n n r r r l l t t s ch ch ck m ng nd rt st ß"},
    {u"F: ", u"b br c c ch d d f fl g gr j l l l m m n p p pl pr qu r r s s t t tr v -",
     u"a a a a e e e e e e i i i o o u u ou ai eau on é é é è ê œu",
     u"- - - - - - r r n n t s l m x nt c"},
}};

class EntryMaker {
 public:
  explicit EntryMaker(std::uint32_t seed) : random_(seed) {}

  // A block; in every other one a foreign language has two words.
  Text block() {
    Text block;
    const std::size_t twice = below(6) + 1;
    for (std::size_t i = 0; i < kLanguages.size(); ++i) {
      block.append(kLanguages.at(i).head).append(word(kLanguages.at(i))).append(kLineEnd);
      if (i == twice) block.append(word(kLanguages.at(i))).append(kLineEnd);
    }
    if (below(10) < 3) block.append(u"C: ").append(comment()).append(kLineEnd);
    return block.append(u"---").append(kLineEnd);
  }

 private:
  std::size_t below(std::size_t bound) { return random_() % bound; }

  TextView part(TextView parts) {
    std::size_t begin = below(parts.size());
    while (begin > 0 && parts[begin - 1] != u' ') begin = below(parts.size());
    const TextView part = parts.substr(begin, parts.find(u' ', begin) - begin);
    return part == u"-" ? TextView() : part;
  }

  Text syllables(const Sounds& sounds, std::size_t length) {
    Text text;
    while (text.size() < length) {
      text.append(part(sounds.onsets)).append(part(sounds.vowels)).append(part(sounds.codas));
    }
    text.resize(length);
    return text;
  }

  // 4 to 25 characters; one long word in eight is a phrase of two.
  Text word(const Sounds& sounds) {
    const std::size_t length = below(8) == 0 ? 4 + below(22) : 4 + below(8) + below(8);
    Text word = syllables(sounds, length);
    if (length > 9 && below(8) == 0) word[length / 2] = u' ';
    return word;
  }

  Text comment() {
    const std::size_t length = 45 + below(25);
    Text comment = syllables(kLanguages[0], 5);
    while (comment.size() < length) {
      comment.append(u" ").append(syllables(kLanguages[0], 2 + below(8)));
    }
    return comment.append(u".");
  }

  std::mt19937 random_;
};

void writeFile(const Path& file, std::uint32_t seed, std::int64_t entries) {
  std::ofstream out(file, std::ios::binary);
  EntryMaker maker(seed);
  out << "Sample glossary, version 1\r\n---\r\n";
  for (std::int64_t i = 0; i < entries; ++i) out << encodeAnsi(maker.block());
  out.close();
  if (out.fail()) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace

std::shared_ptr<const Path> makeScratchFolder() {
  const auto remove = [](const Path* path) {
    std::error_code ignored;
    std::filesystem::remove_all(*path, ignored);
    delete path;
  };
  const std::string name = "termvik-bench-" + std::to_string(std::random_device{}());
  std::shared_ptr<const Path> folder(new Path(std::filesystem::temp_directory_path() / name),
                                     remove);
  std::filesystem::create_directories(*folder);
  return folder;
}

std::array<Path, 2> glossaryFiles(const Path& folder) {
  return {folder / "graphword.txt", folder / "toolsword.txt"};
}

const Path& sampleFolder(std::int64_t entries) {
  static std::map<std::int64_t, std::shared_ptr<const Path>> folders;
  std::shared_ptr<const Path>& folder = folders[entries];
  if (!folder) {
    folder = makeScratchFolder();
    const auto [graph, tools] = glossaryFiles(*folder);
    writeFile(graph, 1, entries - entries / 3);
    writeFile(tools, 2, entries / 3);
  }
  return *folder;
}

}  // namespace termvik::bench
