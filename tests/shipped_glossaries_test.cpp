// SPDX-License-Identifier: MIT
// The two glossaries that are shipped: what whoever adds words to them promises (data/README.md).
#include <map>
#include <set>

#include "support/desk.h"

namespace termvik::test {

struct Shipped {
  std::string file;
  std::int32_t leastEntries;
};

static const std::filesystem::path kData = TERMVIK_DATA_FOLDER;

static std::string bytesOf(const std::string& file) {
  std::ifstream bytes(kData / file, std::ios::binary);
  return {std::istreambuf_iterator<char>(bytes), {}};
}

class ShippedGlossary : public testing::TestWithParam<Shipped> {};

TEST_P(ShippedGlossary, HasCrLfAndCharactersOfItsCodePageOnly) {
  const std::string bytes = bytesOf(GetParam().file);
  ASSERT_FALSE(bytes.empty());
  // What the code page leaves free; the last byte begins nearly every letter of a UTF-8 file.
  const std::string unwanted = "\x7F\x81\x8D\x8F\x90\x9D\xC3";
  for (const char byte : replaced(bytes, "\r\n", "")) {
    const bool isControl = byte >= '\0' && byte < ' ';
    EXPECT_FALSE(isControl || unwanted.find(byte) != std::string::npos) << static_cast<int>(byte);
  }
  EXPECT_EQ(bytes.substr(bytes.size() - 7), "\r\n---\r\n");
}

TEST_P(ShippedGlossary, HasEntriesThatAProfessionalCanUse) {
  Store store;
  store.folder.writeBytes("graphword.txt", bytesOf(GetParam().file));
  store.folder.writeBytes("toolsword.txt", "");
  store.words.readGlossaries();
  std::set<std::map<std::string, std::set<std::string>>> seen;
  std::int32_t comments = 0;
  EXPECT_EQ(store.words.gEntries(1).entryWordCount(), 0) << "the block of the version line";
  for (std::int32_t index = 2; index <= store.words.gGraphLast; ++index) {
    const clsWEntry& entry = store.words.gEntries(index);
    std::map<std::string, std::set<std::string>> words;
    for (std::int32_t i = 1; i <= entry.entryWordCount(); ++i) {
      const std::string word = toUtf8(entry.entryWord(i));
      EXPECT_EQ(trim(entry.entryWord(i)), entry.entryWord(i)) << word;
      EXPECT_TRUE(words[toUtf8(entry.entryType(i))].insert(word).second) << word << " stands twice";
    }
    const std::string head = toUtf8(entry.entryWord(1));
    for (const char* language : {"S", "E", "D", "F"}) {
      EXPECT_TRUE(words.count(language) == 1) << head << " has no words of " << language;
    }
    EXPECT_EQ(words.size(), 4U) << head;
    EXPECT_TRUE(seen.insert(words).second) << "two entries have the words of " << head;
    if (!entry.entryComment().empty()) ++comments;
  }
  const std::int32_t entries = store.words.gGraphLast - 1;
  EXPECT_GE(entries, GetParam().leastEntries);
  EXPECT_GE(2 * comments, entries);
}

INSTANTIATE_TEST_SUITE_P(Files, ShippedGlossary,
                         testing::Values(Shipped{"graphword.txt", 1000},
                                         Shipped{"toolsword.txt", 650}),
                         [](const auto& given) { return given.param.file.substr(0, 9); });

}  // namespace termvik::test
