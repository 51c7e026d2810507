// SPDX-License-Identifier: MIT
// The platform's comparison of texts: the judge of every order and every equality of words.
//
// Letters and accents count, case does not. `ß` equals `ss`, `æ` equals `ae`, `œ` equals `oe`
// whatever the locale, so that all platforms agree.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "common/system/text.h"

namespace termvik {

// One step of a text's collation: what the judge compares in place of characters. A step can lack
// the primary weight (an accent that stands by itself) but never both.
struct CollationElement {
  std::uint32_t primary = 0;    // the letter; 0 for none
  std::uint32_t secondary = 0;  // the accent or kind of the letter
  std::int32_t end = 0;         // characters of the text used up after this element
};

// Characters that the judge places elsewhere than the platform's own order of the locale does.
struct Tailoring {
  TextView characters;
  TextView base;
  bool accented = false;  // they are `base` with an accent above all its others, or else equal it
};

class Collator {
 public:
  // `localeName` as in Collation.
  explicit Collator(const std::string& localeName);
  ~Collator();
  Collator(const Collator&) = delete;
  Collator& operator=(const Collator&) = delete;

  // Negative, 0 or positive as `a` sorts before, equal to or after `b`. Allocates nothing.
  int compare(TextView a, TextView b) const;

  enum class Strength { Letters, Accents };  // what counts: letters alone, or their accents too

  // The platform's own order of the locale: the judge's but for the tailorings. It is there at
  // once, where the judge has to be made when it is first asked.
  int compareUntailored(TextView a, TextView b, Strength strength) const;
  std::vector<Tailoring> tailorings() const;

  // The elements of `text` in their order, the ones that do not count left out.
  std::vector<CollationElement> elements(TextView text) const;

  // True when the order of two texts follows from their elements alone: all primary weights from
  // the front, then all secondary weights from the front or, in some languages, from the back.
  bool comparesByElements() const;

  // Those of `characters` that can change their elements because of another of `characters` before
  // them.
  Text contextCharacters(TextView characters) const;

 private:
  struct Platform;
  std::unique_ptr<Platform> platform_;
};

}  // namespace termvik
