// SPDX-License-Identifier: MIT
#include "merge.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "word_classes.h"

namespace termvik::tool {

namespace {

// A word type and a class of words that are equal: the same number for the same word of an entry.
using Key = std::uint64_t;
using Keys = std::vector<Key>;

constexpr unsigned kClassBits = 32;

Key keyOf(char16_t type, std::uint32_t wordClass) { return Key{type} << kClassBits | wordClass; }
char16_t typeOf(Key key) { return static_cast<char16_t>(key >> kClassBits); }

// Line ends of all kinds count alike.
Text plainComment(const Entry& entry) {
  Text room;
  return joined(linesOf(commentText(entry, room)));
}

// What equal entries have in common: their words as sets, and their comment.
Text identity(Keys keys, const Entry& entry) {
  std::sort(keys.begin(), keys.end());
  keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
  Text identity;
  for (const Key key : keys) {
    for (unsigned shift = 0; shift < 64; shift += 16) {
      identity += static_cast<char16_t>(key >> shift & 0xFFFFU);
    }
  }
  return identity.append(4, u'\0').append(plainComment(entry));
}

// The entries that are written, by their words.
class Index {
 public:
  void add(Key key, std::size_t entry) {
    if (!isLanguage(typeOf(key))) return;
    Numbers& entries = entries_[key];
    const auto place = std::lower_bound(entries.begin(), entries.end(), entry);
    if (place == entries.end() || *place != entry) entries.insert(place, entry);
  }

  // The first entry that has some of the words in two languages or more.
  std::optional<std::size_t> firstSharing(const Keys& keys) const;

 private:
  using Numbers = std::vector<std::size_t>;  // of entries, rising

  // The entries with one of the words.
  struct Sharing {
    char16_t language = u'\0';
    const Numbers* entries = nullptr;
  };

  std::unordered_map<Key, Numbers> entries_;
};

// Such an entry stands in the lists of two languages, so that those of the language with the
// longest lists need no walk: it is the one with the words that are common, or a dash for "none".
std::optional<std::size_t> Index::firstSharing(const Keys& keys) const {
  std::vector<Sharing> lists;
  std::map<char16_t, std::size_t> lengths;
  for (const Key key : keys) {
    const auto found = entries_.find(key);
    if (found == entries_.end()) continue;
    lists.push_back({typeOf(key), &found->second});
    lengths[typeOf(key)] += found->second.size();
  }
  if (lengths.size() < 2) return std::nullopt;
  const char16_t longest =
      std::max_element(lengths.begin(), lengths.end(), [](const auto& a, const auto& b) {
        return a.second < b.second;
      })->first;
  std::optional<std::size_t> first;
  for (const Sharing& list : lists) {
    if (list.language == longest) continue;
    for (const std::size_t entry : *list.entries) {
      if (first && entry >= *first) break;
      const bool inOther = std::any_of(lists.begin(), lists.end(), [&](const Sharing& other) {
        return other.language != list.language &&
               std::binary_search(other.entries->begin(), other.entries->end(), entry);
      });
      if (inOther) first = entry;
    }
  }
  return first;
}

class Merger {
 public:
  Merger(WordList& list, std::size_t inputs, bool join, const Collation& collation)
      : list_(list), join_(join), counts_(inputs) {
    std::vector<TextView> words;
    for (const Entry& entry : list_.entries) {
      for (const Word& word : entry.words) words.push_back(word.text);
    }
    classes_ = classesOf(words, collation);
  }

  std::vector<MergeCounts> merge() {
    Entries entries = std::exchange(list_.entries, {});
    list_.entries.reserve(entries.size());
    std::size_t nextWord = 0;
    for (Entry& entry : entries) {
      Keys keys;
      for (const Word& word : entry.words) keys.push_back(keyOf(word.type, classes_[nextWord++]));
      take(std::move(entry), std::move(keys));
    }
    return counts_;
  }

 private:
  void take(Entry&& entry, Keys&& keys) {
    MergeCounts& counts = counts_[entry.place.input];
    ++counts.read;
    if (!seen_.insert(identity(keys, entry)).second) {
      ++counts.dropped;
      return;
    }
    const auto earlier = join_ ? index_.firstSharing(keys) : std::nullopt;
    if (earlier) {
      ++counts.joined;
      joinWith(*earlier, entry, keys);
      return;
    }
    list_.entries.push_back(std::move(entry));
    if (!join_) return;
    for (const Key key : keys) index_.add(key, list_.entries.size() - 1);
    keys_.push_back(std::move(keys));
  }

  void joinWith(std::size_t earlier, const Entry& entry, const Keys& keys) {
    Entry& target = list_.entries[earlier];
    Keys& targetKeys = keys_[earlier];
    for (std::size_t i = 0; i < keys.size(); ++i) {
      if (std::find(targetKeys.begin(), targetKeys.end(), keys[i]) != targetKeys.end()) continue;
      target.words.push_back(entry.words[i]);
      targetKeys.push_back(keys[i]);
      index_.add(keys[i], earlier);
    }
    const Text comment = plainComment(entry);
    const bool isThere = std::any_of(
        target.comment.begin(), target.comment.end(),
        [&](const CommentPiece& piece) { return joined(linesOf(piece.text)) == comment; });
    if (entry.comment.empty() || isThere || plainComment(target) == comment) return;
    target.comment.insert(target.comment.end(), entry.comment.begin(), entry.comment.end());
  }

  WordList& list_;
  bool join_;
  std::vector<MergeCounts> counts_;
  std::vector<std::uint32_t> classes_;  // of all words, in the order of the entries
  std::unordered_set<Text> seen_;
  Index index_;
  std::vector<Keys> keys_;  // of the entries that are written
};

}  // namespace

std::vector<MergeCounts> mergeEntries(WordList& list, std::size_t inputs, bool join,
                                      const Collation& collation) {
  return Merger(list, inputs, join, collation).merge();
}

}  // namespace termvik::tool
