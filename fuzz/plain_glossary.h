// SPDX-License-Identifier: MIT
// What the glossary files mean, read the plainest way: line by line, each question put to the
// collator, each text a copy.
#pragma once

#include <string_view>
#include <vector>

#include "collator.h"
#include "common/system/text.h"

namespace termvik::fuzz {

// A term is a stretch of a text's characters.
bool occursPlainly(const Collator& judge, TextView term, TextView text);

class PlainEntry {
 public:
  // `lines` are those of a block, one of which at least counts.
  PlainEntry(const Collator& judge, const std::vector<Text>& lines);

  // Some line of the block is not empty and stands ahead of its comment.
  static bool counts(const Collator& judge, const std::vector<Text>& lines);

  std::vector<Text> wordsOf(TextView type) const;  // those that are not empty
  Text article(TextView type) const;
  Text block(TextView key) const;  // of the exported file; empty when the row is not written

  // The word to list when one of the terms occurs; false when none does.
  bool find(const std::vector<Text>& terms, TextView type, Text& word) const;

 private:
  struct Word {
    Text type;
    Text text;
  };

  bool equal(TextView a, TextView b) const { return judge_->compare(a, b) == 0; }
  std::vector<Text> risingWords(TextView type) const;
  Text wordForComment(TextView type) const;

  const Collator* judge_;
  std::vector<Word> words_;
  Text comment_;
};

struct PlainGlossary {
  Text firstLine;
  std::vector<PlainEntry> entries;
};

PlainGlossary readPlainly(const Collator& judge, std::string_view file);

}  // namespace termvik::fuzz
