// SPDX-License-Identifier: MIT
// The judge where ICU is the platform's collation.
#include <array>
#include <cstdlib>
#include <mutex>
#include <string_view>

#include <unicode/ucol.h>
#include <unicode/ucoleitr.h>
#include <unicode/uloc.h>
#include <unicode/uset.h>

#include "collator.h"
#include "common/collation/collation.h"
#include "locale_name.h"

namespace termvik {

namespace {

constexpr const char* kDefaultLocale = "sv";

// What makes ICU agree with the other platforms on every letter.
const std::vector<Tailoring> kLigatures = {{u"ßẞ", u"ss"}, {u"æÆ", u"ae"}, {u"œŒ", u"oe"}};
constexpr Tailoring kSwedish = {u"ôÔ", u"o", true};  // the locale's own rules file ô under ö

// The same as rules of ICU.
Text rulesOf(const std::vector<Tailoring>& tailorings) {
  Text rules;
  for (const auto& [characters, base, accented] : tailorings) {
    rules.append(u"&").append(base);
    for (std::size_t i = 0; i < characters.size(); ++i) {
      rules.append(accented && i == 0 ? u"<<" : u"<<<").append(characters, i, 1);
    }
  }
  return rules;
}

std::string languageOf(const std::string& locale) {
  std::array<char, ULOC_LANG_CAPACITY> language{};
  UErrorCode error = U_ZERO_ERROR;
  uloc_getLanguage(locale.c_str(), language.data(), ULOC_LANG_CAPACITY, &error);
  return U_SUCCESS(error) ? language.data() : "";
}

// ICU's own name for a locale as the environment writes it.
std::string canonicalName(const std::string& name) {
  std::array<char, ULOC_FULLNAME_CAPACITY> canonical{};
  UErrorCode error = U_ZERO_ERROR;
  uloc_canonicalize(name.c_str(), canonical.data(), ULOC_FULLNAME_CAPACITY, &error);
  return U_SUCCESS(error) ? canonical.data() : "";
}

std::int32_t size32(TextView text) { return static_cast<std::int32_t>(text.size()); }

struct CollatorCloser {
  void operator()(UCollator* collator) const { ucol_close(collator); }
};
using IcuCollator = std::unique_ptr<UCollator, CollatorCloser>;

int compareWith(const IcuCollator& collator, TextView a, TextView b) {
  return ucol_strcoll(collator.get(), a.data(), size32(a), b.data(), size32(b));
}

}  // namespace

struct Collator::Platform {
  std::string locale;
  IcuCollator plain;           // without the tailorings
  IcuCollator letters;         // the same, comparing letters alone
  IcuCollator tailored;        // the judge; ICU takes its time to make one from rules
  std::once_flag judgeIsMade;  // by whichever thread asks first

  bool open(const std::string& name) {
    UErrorCode error = U_ZERO_ERROR;
    locale = canonicalName(name);
    plain.reset(ucol_open(locale.c_str(), &error));
    if (U_FAILURE(error)) return false;
    ucol_setStrength(plain.get(), UCOL_SECONDARY);
    letters.reset(ucol_clone(plain.get(), &error));
    if (U_FAILURE(error)) return false;
    ucol_setStrength(letters.get(), UCOL_PRIMARY);
    return true;
  }

  std::vector<Tailoring> tailorings() const {
    std::vector<Tailoring> all = kLigatures;
    if (languageOf(locale) == "sv") all.push_back(kSwedish);
    return all;
  }

  const IcuCollator& judge() {
    std::call_once(judgeIsMade, [this] { makeJudge(); });
    return tailored;
  }

  void makeJudge() {
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t length = 0;
    const UChar* localeRules = ucol_getRules(plain.get(), &length);
    const Text rules = Text(localeRules, static_cast<std::size_t>(length)) + rulesOf(tailorings());
    tailored.reset(ucol_openRules(rules.data(), static_cast<std::int32_t>(rules.size()),
                                  UCOL_DEFAULT, UCOL_SECONDARY, nullptr, &error));
    if (U_FAILURE(error)) std::abort();  // ICU knows all of these rules
  }

  UColAttributeValue attribute(UColAttribute which) const {
    UErrorCode error = U_ZERO_ERROR;
    return ucol_getAttribute(plain.get(), which, &error);
  }
};

Collator::Collator(const std::string& localeName) : platform_(std::make_unique<Platform>()) {
  const std::string locale = localeWithoutCodePage(localeName);
  if (!locale.empty() && platform_->open(locale)) return;
  if (!platform_->open(kDefaultLocale))
    std::abort();  // ICU without its data: nothing can be sorted
}

Collator::~Collator() = default;

int Collator::compare(TextView a, TextView b) const {
  return compareWith(platform_->judge(), a, b);
}

int Collator::compareUntailored(TextView a, TextView b, Strength strength) const {
  const bool lettersAlone = strength == Strength::Letters;
  return compareWith(lettersAlone ? platform_->letters : platform_->plain, a, b);
}

std::vector<Tailoring> Collator::tailorings() const { return platform_->tailorings(); }

std::vector<CollationElement> Collator::elements(TextView text) const {
  std::vector<CollationElement> result;
  UErrorCode error = U_ZERO_ERROR;
  UCollationElements* walk =
      ucol_openElements(platform_->judge().get(), text.data(), size32(text), &error);
  if (U_FAILURE(error)) return result;
  for (std::int32_t order = ucol_next(walk, &error); order != UCOL_NULLORDER;
       order = ucol_next(walk, &error)) {
    // ICU hands out a long element in two halves; the lower half carries 0xC0 in its tertiary.
    constexpr std::int32_t kLowerHalf = 0xC0;
    const auto primary = static_cast<std::uint32_t>(ucol_primaryOrder(order));
    const auto secondary = static_cast<std::uint32_t>(ucol_secondaryOrder(order));
    const std::int32_t end = ucol_getOffset(walk);
    if ((ucol_tertiaryOrder(order) & kLowerHalf) == kLowerHalf && !result.empty()) {
      result.back().primary |= primary;
      result.back().secondary |= secondary;
      result.back().end = end;
    } else if (primary != 0 || secondary != 0) {
      result.push_back({primary << 16U, secondary << 8U, end});
    }
  }
  ucol_closeElements(walk);
  return result;
}

bool Collator::comparesByElements() const {
  UErrorCode error = U_ZERO_ERROR;
  const bool reordersScripts =
      ucol_getReorderCodes(platform_->plain.get(), nullptr, 0, &error) != 0;
  return !reordersScripts && platform_->attribute(UCOL_ALTERNATE_HANDLING) == UCOL_NON_IGNORABLE &&
         platform_->attribute(UCOL_CASE_LEVEL) == UCOL_OFF &&
         platform_->attribute(UCOL_NUMERIC_COLLATION) == UCOL_OFF;
}

Text Collator::contextCharacters(TextView characters) const {
  Text result = u"·";  // the order that all locales go out from joins it to an l
  // Swedish adds nothing to that, and to look would cost the start half a millisecond
  // (bench/start).
  if (languageOf(platform_->locale) == "sv") return result;
  UErrorCode error = U_ZERO_ERROR;
  USet* tailored = ucol_getTailoredSet(platform_->plain.get(), &error);
  for (std::int32_t i = 0; i < uset_getItemCount(tailored); ++i) {
    UChar32 start = 0;
    UChar32 end = 0;
    std::array<UChar, 64> sequence{};
    UErrorCode itemError = U_ZERO_ERROR;
    const std::int32_t length =
        uset_getItem(tailored, i, &start, &end, sequence.data(), sequence.size(), &itemError);
    if (length < 2 || U_FAILURE(itemError)) continue;  // a plain range of characters
    const TextView joined(sequence.data(), static_cast<std::size_t>(length));
    if (joined.find_first_not_of(characters) != TextView::npos) continue;
    result.append(joined.substr(1));
  }
  uset_close(tailored);
  return result;
}

std::string userLocaleName() {
  for (const char* variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

}  // namespace termvik
