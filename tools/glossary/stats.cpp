// SPDX-License-Identifier: MIT
#include "stats.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "messages.h"
#include "word_classes.h"

namespace termvik::tool {

namespace {

constexpr std::size_t kNameWidth = 20;
constexpr std::size_t kNumberWidth = 9;

using Numbers = std::array<std::size_t, kLanguages.size()>;

// A word of a language and the entry that it stands in.
struct Occurrence {
  std::uint32_t wordClass = 0;
  std::size_t entry = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): the comparison that is made has a 0 in it
  auto operator<=>(const Occurrence&) const = default;
};

// Words that stand in more than one entry, each counted once.
std::size_t countDoublets(std::vector<Occurrence>& words) {
  std::sort(words.begin(), words.end());
  std::size_t doublets = 0;
  for (std::size_t i = 0; i < words.size();) {
    std::size_t end = i + 1;
    while (end < words.size() && words[end].wordClass == words[i].wordClass) ++end;
    if (words[i].entry != words[end - 1].entry) ++doublets;
    i = end;
  }
  return doublets;
}

std::string padded(std::string_view text) {
  return std::string(kNumberWidth - std::min(kNumberWidth, text.size()), ' ').append(text);
}

std::string row(std::string_view name, const std::string& rest) {
  return "  " + std::string(name) + std::string(kNameWidth - name.size(), ' ') + rest + "\n";
}

std::string row(std::string_view name, const Numbers& numbers) {
  std::string cells;
  for (const std::size_t number : numbers) cells += padded(std::to_string(number));
  return row(name, cells);
}

std::string row(std::string_view name, std::size_t number) {
  return row(name, padded(std::to_string(number)));
}

// The numbers of one part of a list.
class Counts {
 public:
  // `classes` are those of the entry's words.
  void add(const Entry& entry, const std::uint32_t* classes) {
    ++entries_;
    comments_ += entry.comment.empty() ? 0 : 1;
    Numbers words{};
    for (const Word& word : entry.words) {
      if (word.text.size() > longest_.text.size()) longest_ = word;
      const std::uint32_t wordClass = *classes++;
      const std::size_t language = kLanguages.find(word.type);
      if (language == TextView::npos) continue;
      ++words.at(language);
      occurrences_.at(language).push_back({wordClass, entries_});
    }
    for (std::size_t language = 0; language < words.size(); ++language) {
      words_.at(language) += words.at(language);
      without_.at(language) += words.at(language) == 0 ? 1 : 0;
    }
  }

  std::string text(const std::string& name) {
    Numbers doublets{};
    std::transform(occurrences_.begin(), occurrences_.end(), doublets.begin(), countDoublets);
    std::string letters;
    for (const char16_t language : kLanguages) letters += padded(toUtf8({&language, 1}));
    std::string longest = "         -";
    if (!longest_.text.empty()) {
      longest = padded(std::to_string(longest_.text.size())) + "  " + shown(longest_.text) + " (" +
                toUtf8({&longest_.type, 1}) + ")";
    }
    return name + "\n" + row("entries", entries_) + row("", letters) + row("words", words_) +
           row("entries without", without_) + row("doublets", doublets) +
           row("comments", comments_) + row("longest word", longest);
  }

 private:
  std::size_t entries_ = 0;
  std::size_t comments_ = 0;
  Numbers words_{};
  Numbers without_{};
  std::array<std::vector<Occurrence>, kLanguages.size()> occurrences_;
  Word longest_;
};

}  // namespace

std::string statsText(const WordList& list, const std::vector<ListPart>& parts,
                      const Collation& collation) {
  std::vector<TextView> words;
  std::vector<std::size_t> firstWords;  // of each entry
  for (const Entry& entry : list.entries) {
    firstWords.push_back(words.size());
    for (const Word& word : entry.words) words.push_back(word.text);
  }
  const std::vector<std::uint32_t> classes = classesOf(words, collation);
  std::string all;
  for (const ListPart& part : parts) {
    Counts counts;
    for (std::size_t i = part.first; i < part.end; ++i) {
      counts.add(list.entries[i], classes.data() + firstWords[i]);
    }
    all.append(all.empty() ? "" : "\n").append(counts.text(part.name));
  }
  return all;
}

}  // namespace termvik::tool
