// SPDX-License-Identifier: MIT
// The judge where Windows collates.
//
// Windows compares two texts as it compares their sort keys. A key is the weights of the letters
// (two bytes each), the accents and the kinds of the letters (a byte each; those at the end that
// are the usual ones are left out), and whatever else some scripts need, each part after a byte 1.
// So the keys of short pieces tell the collation elements.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <windows.h>

#include "collator.h"
#include "common/collation/collation.h"
#include "common/system/codepage.h"
#include "common/system/wide_win.h"
#include "locale_name.h"

namespace termvik {

namespace {

constexpr DWORD kComparison = NORM_IGNORECASE | SORT_STRINGSORT;
constexpr const wchar_t* kDefaultLocale = L"sv-SE";

// No collation joins more characters than this into one step.
constexpr std::size_t kLongestStep = 4;

constexpr char kUsual = 2;  // the accent and the kind of a letter that has no other

void dropUsual(std::string& weights) {
  while (!weights.empty() && weights.back() == kUsual) weights.pop_back();
}

// A sort key in its parts, the usual weights at their ends left out.
struct SortKey {
  std::string letters;
  std::string accents;
  std::string kinds;
  std::string rest;
  std::size_t count = 0;  // of the accents and kinds if none were left out

  std::size_t letterCount() const { return letters.size() / 2; }

  // All that a comparison needs to know of a character is its letters and their accents.
  bool isPlain() const { return kinds.empty() && rest.empty() && accents.size() <= letterCount(); }

  bool operator==(const SortKey& other) const {
    return letters == other.letters && accents == other.accents && kinds == other.kinds &&
           rest == other.rest;
  }

  // Becomes the key of a text of two pieces, where neither changes the other.
  void append(const SortKey& next) {
    if (!next.accents.empty()) accents.resize(count, kUsual);
    if (!next.kinds.empty()) kinds.resize(count, kUsual);
    letters += next.letters;
    accents += next.accents;
    kinds += next.kinds;
    rest += next.rest;
    count += next.count;
  }
};

std::string takePart(std::string_view& bytes) {
  constexpr char kPartEnd = 1;
  const std::size_t end = std::min(bytes.find(kPartEnd), bytes.size());
  std::string part(bytes.substr(0, end));
  bytes.remove_prefix(std::min(end + 1, bytes.size()));
  return part;
}

SortKey splitKey(std::string_view bytes) {
  SortKey key;
  key.letters = takePart(bytes);
  key.accents = takePart(bytes);
  key.kinds = takePart(bytes);
  for (const char byte : bytes) {
    if (byte > 1 || byte < 0) key.rest += byte;
  }
  dropUsual(key.accents);
  dropUsual(key.kinds);
  key.count = std::max(key.letterCount(), key.accents.size());
  return key;
}

// Windows' own name for a locale as the environment writes it; Swedish when it has none.
std::wstring windowsName(const std::string& name) {
  const std::string locale = localeWithoutCodePage(name);
  std::wstring candidate = wide(fromUtf8(locale.substr(0, locale.find('@'))));
  if (candidate.empty()) return kDefaultLocale;
  if (IsValidLocaleName(candidate.c_str()) != 0) return candidate;
  std::replace(candidate.begin(), candidate.end(), L'_', L'-');
  return IsValidLocaleName(candidate.c_str()) != 0 ? candidate : kDefaultLocale;
}

std::uint32_t weight(char byte) { return static_cast<unsigned char>(byte); }

int size32(TextView text) { return static_cast<int>(text.size()); }

// A text of no characters has no address that Windows would take.
const wchar_t* address(TextView text) { return text.empty() ? L"" : wide(text.data()); }

}  // namespace

struct Collator::Platform {
  std::wstring locale;
  bool accentsFromBack = false;  // the key has the accents of the last letters first

  // Of the characters of a file those whose keys are no more than letters and accents, and which of
  // them, one after the other, have another key than each its own.
  std::unordered_map<char16_t, SortKey> plain;
  std::set<std::pair<char16_t, char16_t>> joined;

  explicit Platform(std::wstring localeName) : locale(std::move(localeName)) {
    accentsFromBack = keyOf(u"éo").accents.size() > 1;
    for (const char16_t character : ansiCharacters()) addIfPlain(character);
  }

  int compare(TextView a, TextView b, DWORD flags) const {
    return CompareStringEx(locale.c_str(), flags, address(a), size32(a), address(b), size32(b),
                           nullptr, nullptr, 0) -
           CSTR_EQUAL;
  }
  SortKey keyOf(TextView text) const;
  bool joins(TextView a, TextView b) const;
  void addIfPlain(char16_t character);
  bool joinsAnyPlain(char16_t character) const;
  const SortKey* keyOfLoneCharacter(TextView text) const;
  std::size_t stepLength(TextView text) const;
};

SortKey Collator::Platform::keyOf(TextView text) const {
  if (text.empty()) return {};
  std::string bytes(16 * text.size() + 32, '\0');
  for (;;) {
    const int length = LCMapStringEx(locale.c_str(), LCMAP_SORTKEY | kComparison, wide(text.data()),
                                     size32(text), reinterpret_cast<wchar_t*>(bytes.data()),
                                     static_cast<int>(bytes.size()), nullptr, nullptr, 0);
    if (length == 0 && GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
      bytes.resize(2 * bytes.size());
      continue;
    }
    SortKey key = splitKey(std::string_view(bytes).substr(0, static_cast<std::size_t>(length)));
    if (accentsFromBack) {
      key.accents.resize(key.count, kUsual);
      std::reverse(key.accents.begin(), key.accents.end());
      dropUsual(key.accents);
    }
    return key;
  }
}

// True when the key of `a` and `b` together is another than their keys one after the other.
bool Collator::Platform::joins(TextView a, TextView b) const {
  SortKey apart = keyOf(a);
  apart.append(keyOf(b));
  return apart != keyOf(Text(a).append(b));
}

// Each two plain characters are tried together, in both orders.
void Collator::Platform::addIfPlain(char16_t character) {
  SortKey key = keyOf({&character, 1});
  if (!key.isPlain() || !plain.try_emplace(character, std::move(key)).second) return;
  if (!joinsAnyPlain(character)) return;
  for (const auto& [other, otherKey] : plain) {
    if (joins({&character, 1}, {&other, 1})) joined.emplace(character, other);
    if (joins({&other, 1}, {&character, 1})) joined.emplace(other, character);
  }
}

// Asks Windows once for all the others.
bool Collator::Platform::joinsAnyPlain(char16_t character) const {
  Text pairs;
  SortKey apart;
  for (const auto& [other, key] : plain) {
    pairs.append({character, other});
    apart.append(plain.at(character));
    apart.append(key);
  }
  return apart != keyOf(pairs);
}

// The key of the first character where it is known to stand for itself: in all that could be one
// step no two neighbours join.
const SortKey* Collator::Platform::keyOfLoneCharacter(TextView text) const {
  const auto first = plain.find(text.front());
  if (first == plain.end()) return nullptr;
  for (std::size_t i = 1; i < std::min(kLongestStep, text.size()); ++i) {
    if (!plain.contains(text[i]) || joined.contains({text[i - 1], text[i]})) return nullptr;
  }
  return &first->second;
}

// How many characters at the beginning of `text` are collated together: as few as leave alone what
// follows them.
std::size_t Collator::Platform::stepLength(TextView text) const {
  const std::size_t most = std::min(kLongestStep, text.size());
  const auto joinsNext = [&](std::size_t length) {
    for (std::size_t end = length + 1; end <= most; ++end) {
      if (joins(text.substr(0, length), text.substr(length, end - length))) return true;
    }
    return false;
  };
  std::size_t length = 1;
  while (length < most && joinsNext(length)) ++length;
  return length;
}

Collator::Collator(const std::string& localeName)
    : platform_(std::make_unique<Platform>(windowsName(localeName))) {
  if (platform_->keyOf(u"a").letters.empty()) std::abort();  // nothing can be sorted
}

Collator::~Collator() = default;

int Collator::compare(TextView a, TextView b) const {
  return platform_->compare(a, b, kComparison);
}

int Collator::compareUntailored(TextView a, TextView b, Strength strength) const {
  const DWORD ignored = strength == Strength::Letters ? NORM_IGNORENONSPACE : 0;
  return platform_->compare(a, b, kComparison | ignored);
}

std::vector<Tailoring> Collator::tailorings() const { return {}; }

// The accents go to the letters in their order, as they do in the comparison: that of a text which
// begins with an accent goes to its first letter.
std::vector<CollationElement> Collator::elements(TextView text) const {
  std::vector<CollationElement> result;
  SortKey all;
  for (std::size_t at = 0; at < text.size();) {
    const TextView rest = text.substr(at);
    if (const SortKey* key = platform_->keyOfLoneCharacter(rest)) {
      all.append(*key);
      ++at;
    } else {
      const std::size_t length = platform_->stepLength(rest);
      all.append(platform_->keyOf(rest.substr(0, length)));
      at += length;
    }
    std::uint32_t more = 0;
    for (const char byte : std::exchange(all.rest, {})) more = 31 * more + weight(byte);
    result.resize(all.letterCount(), {0, more << 16U, static_cast<std::int32_t>(at)});
  }
  const std::size_t count = std::max({result.size(), all.accents.size(), all.kinds.size()});
  result.resize(count, {0, 0, size32(text)});
  all.letters.resize(2 * count, '\0');
  all.accents.resize(count, kUsual);
  all.kinds.resize(count, kUsual);
  for (std::size_t i = 0; i < count; ++i) {
    result[i].primary = weight(all.letters[2 * i]) << 8U | weight(all.letters[2 * i + 1]);
    result[i].secondary |= weight(all.kinds[i]) << 8U | weight(all.accents[i]);
  }
  return result;
}

// Windows weighs in no other way.
bool Collator::comparesByElements() const { return true; }

// What is not known to be plain is counted among them.
Text Collator::contextCharacters(TextView characters) const {
  Text result;
  for (const auto& [first, second] : platform_->joined) result += second;
  for (const char16_t character : characters) {
    if (!platform_->plain.contains(character)) result += character;
  }
  return result;
}

std::string userLocaleName() {
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name{};
  GetUserDefaultLocaleName(name.data(), static_cast<int>(name.size()));
  return toUtf8(fromWide(name.data()));
}

}  // namespace termvik
