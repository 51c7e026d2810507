// SPDX-License-Identifier: MIT
// Loading both glossaries against the least work that gives entries: each file mapped and, in one
// pass, decoded and cut into words. That pass knows nothing of collation, broken files or other
// code pages, and reads each file once; the store reads it twice, first to measure it.
#include <array>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include "common/system/codepage.h"
#include "sample_glossary.h"
#include "sample_program.h"
#include "side_by_side.h"

namespace termvik::bench {

namespace {

constexpr double kLimit = 2;

// A file's bytes in memory; throws when there are none.
class MappedFile {
 public:
  explicit MappedFile(const std::filesystem::path& path) : size_(std::filesystem::file_size(path)) {
    const int file = open(path.c_str(), O_RDONLY);
    bytes_ = mmap(nullptr, size_, PROT_READ, MAP_PRIVATE | MAP_POPULATE, file, 0);
    close(file);
    if (bytes_ == MAP_FAILED) throw std::runtime_error("cannot map " + path.string());
  }
  ~MappedFile() { munmap(bytes_, size_); }
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  std::string_view bytes() const { return {static_cast<const char*>(bytes_), size_}; }

 private:
  std::size_t size_;
  void* bytes_;
};

// All words and comments of a file: the decoded file, and where each text begins and ends in it.
struct PlainEntries {
  struct Piece {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
  };

  std::unique_ptr<char16_t[]> characters;
  std::vector<Piece> pieces;
  std::vector<char16_t> types;             // of each text
  std::vector<std::uint32_t> firstPieces;  // of each entry
};

PlainEntries parse(std::string_view bytes, const Text& decoded) {
  PlainEntries entries;
  entries.characters = std::make_unique_for_overwrite<char16_t[]>(bytes.size());
  char16_t type = 0;
  bool inEntry = false;
  for (std::size_t begin = 0; begin < bytes.size();) {
    const void* found = std::memchr(bytes.data() + begin, '\r', bytes.size() - begin);
    if (found == nullptr) break;
    const auto end = static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data());
    char16_t* const line = entries.characters.get() + begin;
    for (std::size_t i = begin; i < end; ++i) {
      entries.characters[i] = decoded[static_cast<unsigned char>(bytes[i])];
    }
    std::size_t text = begin;
    if (end - begin >= 3 && line[0] == u'-' && line[1] == u'-' && line[2] == u'-') {
      inEntry = false;
    } else {
      if (!inEntry)
        entries.firstPieces.push_back(static_cast<std::uint32_t>(entries.pieces.size()));
      inEntry = true;
      if (end - begin >= 3 && line[1] == u':') {
        type = line[0];
        text = begin + 3;
      }
      entries.pieces.push_back({static_cast<std::uint32_t>(text), static_cast<std::uint32_t>(end)});
      entries.types.push_back(type);
    }
    begin = end + 2;
  }
  return entries;
}

void load(benchmark::State& state) {
  const std::filesystem::path& folder = sampleFolder(state.range(0));
  std::unique_ptr<defWords> store;
  const Task program{.work = [&] { store->readGlossaries(); },
                     .prepare =
                         [&] {
                           store.reset();
                           store = std::make_unique<defWords>(swedish(), folder, [](TextView) {});
                         }};
  const Text decoded = ansiCharacters();
  std::array<PlainEntries, 2> entries;
  const Task mapAndParse{.work =
                             [&] {
                               const auto files = glossaryFiles(folder);
                               for (std::size_t i = 0; i < files.size(); ++i) {
                                 entries.at(i) = parse(MappedFile(files.at(i)).bytes(), decoded);
                               }
                             },
                         .prepare = [&] { entries = {}; }};
  measure(state, program, mapAndParse, {.most = kLimit});
}

}  // namespace

void addBenchmarks() { add("load", kSizes, load); }

}  // namespace termvik::bench
