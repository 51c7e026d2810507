// SPDX-License-Identifier: MIT
// The main window as a user knows it, without a window: what each act does to the list, the
// selection, the article and the buttons.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "plain_glossary.h"
#include "plain_rows.h"

namespace termvik::fuzz {

// At most ten terms of a search text.
std::vector<Text> termsPlainly(const Collator& judge, TextView text);

class PlainProgram {
 public:
  explicit PlainProgram(const Collator& judge) : judge_(&judge), rows_(judge) {}

  // The user's acts.
  void start(const std::array<std::string, 2>& files, std::int16_t glossary);
  void reRead(const std::array<std::string, 2>& files);
  void changeText(TextView text);
  void pressKey(std::int16_t key);
  void clickRow(std::int32_t row);
  void chooseGlossary(std::int16_t index);
  void chooseSearch(std::int16_t index);
  void searchAgain();
  void checkDoublets(bool checked);
  void chooseLanguage(TextView type);

  const PlainRows& rows() const { return rows_; }
  const PlainEntry& entry(std::int32_t index) const {
    return entries_[static_cast<std::size_t>(index) - 1];
  }
  std::int32_t selected() const { return selected_; }
  const Text& article() const { return article_; }
  std::int16_t glossary() const { return glossary_; }
  std::int16_t search() const { return search_; }
  bool canSearchAgain() const { return canSearchAgain_; }
  TextView type() const { return type_; }
  Text doubletReport() const;
  Text exported() const;

 private:
  void read(const std::array<std::string, 2>& files);
  template <class Visit>
  void visitChosen(Visit visit) const;
  void fill();
  void markDoublets();
  void fullSearch();
  void lookUp();
  void select(std::int32_t row);
  void placeSelection();
  void languageChanged();

  const Collator* judge_;
  std::vector<PlainEntry> entries_;
  std::size_t graphCount_ = 0;
  PlainRows rows_;
  std::int32_t selected_ = -1;
  Text article_;
  Text text_;
  Text type_ = u"S";
  std::int16_t glossary_ = -1;
  std::int16_t search_ = 0;
  bool canSearchAgain_ = false;
  bool marks_ = true;
};

}  // namespace termvik::fuzz
