// SPDX-License-Identifier: MIT
#include "code_page_mender.h"

#include <algorithm>
#include <bitset>
#include <string>

#include "common/system/windows_1252.h"

namespace termvik::tool {

namespace {

constexpr std::size_t kUnits = 0x10000;

bool isInCodePage(char16_t character) {
  return character == u'?' || windows1252::encode(character) != '?';
}

std::bitset<kUnits> makePlain() {
  std::bitset<kUnits> plain;
  for (std::size_t unit = 0; unit < kUnits; ++unit) {
    plain[unit] = isInCodePage(static_cast<char16_t>(unit));
  }
  plain[u'\r'] = plain[u'\n'] = false;
  return plain;
}

// The character at the beginning of `text`: a surrogate pair is one.
TextView firstCharacter(TextView text) {
  const auto isHigh = [](char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
  const auto isLow = [](char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
  return text.substr(0, text.size() > 1 && isHigh(text[0]) && isLow(text[1]) ? 2 : 1);
}

}  // namespace

bool isPlainInCodePage(TextView text) {
  static const std::bitset<kUnits> plain = makePlain();
  return std::all_of(text.begin(), text.end(), [](char16_t unit) { return plain[unit]; });
}

Text inCodePage(TextView text, Place place, bool lossy, Messages& messages) {
  Text result;
  Text told;
  while (!text.empty()) {
    const TextView character = firstCharacter(text);
    text.remove_prefix(character.size());
    if (character.size() == 1 && isInCodePage(character.front())) {
      result.append(character);
      continue;
    }
    result += u'?';
    if (told.find(character) != Text::npos) continue;
    told.append(character);
    messages.tell(lossy ? Severity::Warning : Severity::Error, place,
                  codeName(character) + " " + toUtf8(character) +
                      (lossy ? " becomes ?: Windows-1252 lacks it" : " is not in Windows-1252"));
  }
  return result;
}

}  // namespace termvik::tool
