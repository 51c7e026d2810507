// SPDX-License-Identifier: MIT
// The yardstick of full search: the words and comments of a store as folded bytes, side by side,
// and plain passes over them.
#pragma once

#include <string>
#include <string_view>

#include "glossary/def_words.h"

namespace termvik::bench {

class FoldedBytes {
 public:
  explicit FoldedBytes(defWords& store);

  static std::string fold(TextView text);

  // How often `term` stands in the texts, by two ways to look for it. Which is faster depends on
  // the term; to look into each text by itself never is.
  std::size_t countByLibrary(std::string_view term) const;
  std::size_t countByFirstByte(std::string_view term) const;

 private:
  std::string bytes_;  // a 0 after each text
};

}  // namespace termvik::bench
