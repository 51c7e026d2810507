// SPDX-License-Identifier: MIT
#include "plain_glossary.h"

#include <algorithm>

#include "common/system/codepage.h"

namespace termvik::fuzz {

namespace {

bool begins(const Collator& judge, TextView line, TextView mark) {
  return judge.compare(line.substr(0, mark.size()), mark) == 0;
}

TextView fromColumn(TextView line, std::size_t column) {
  return line.size() < column ? TextView() : line.substr(column - 1);
}

std::vector<Text> linesOf(std::string_view file) {
  std::vector<Text> lines;
  while (!file.empty()) {
    const std::size_t end = std::min(file.find('\r'), file.size());
    lines.emplace_back(trimEnd(decodeAnsi(file.substr(0, end))));
    file.remove_prefix(end);
    file.remove_prefix(file.starts_with("\r\n") ? 2 : file.empty() ? 0 : 1);
  }
  return lines;
}

}  // namespace

bool occursPlainly(const Collator& judge, TextView term, TextView text) {
  for (std::size_t from = 0; from < text.size(); ++from) {
    for (std::size_t length = 1; from + length <= text.size(); ++length) {
      if (judge.compare(text.substr(from, length), term) == 0) return true;
    }
  }
  return false;
}

bool PlainEntry::counts(const Collator& judge, const std::vector<Text>& lines) {
  for (const Text& line : lines) {
    if (begins(judge, line, u"C:")) return false;
    if (judge.compare(line, {}) != 0) return true;
  }
  return false;
}

PlainEntry::PlainEntry(const Collator& judge, const std::vector<Text>& lines) : judge_(&judge) {
  bool inComment = false;
  Text type;
  for (const Text& line : lines) {
    if (begins(judge, line, u"C:")) {
      inComment = true;
      comment_ = trim(fromColumn(line, 3));
    } else if (inComment && equal(comment_, {})) {
      comment_ = line;
    } else if (inComment) {
      comment_.append(kLineEnd).append(line);
    } else if (line.size() > 1 && equal(fromColumn(line, 2).substr(0, 1), u":")) {
      type = line.substr(0, 1);
      words_.push_back({type, Text(fromColumn(line, 4))});
    } else if (!equal(line, {}) && !type.empty()) {
      words_.push_back({type, line});
    }
  }
}

std::vector<Text> PlainEntry::wordsOf(TextView type) const {
  std::vector<Text> words;
  for (const Word& word : words_) {
    if (equal(word.type, type) && !equal(word.text, {})) words.push_back(word.text);
  }
  return words;
}

Text PlainEntry::article(TextView type) const {
  Text article;
  for (const Word& word : words_) {
    if (!equal(word.type, type)) continue;
    article.append(article.empty() ? Text(type).append(u": ") : u", ").append(word.text);
  }
  Text previous;
  for (const Word& word : words_) {
    if (equal(word.type, type)) continue;
    const Text head = Text(kLineEnd).append(word.type).append(u": ");
    article.append(equal(word.type, previous) ? u", " : head).append(word.text);
    previous = word.type;
  }
  return article.append(kLineEnd).append(kLineEnd).append(comment_);
}

// Rising, of equal ones the first.
std::vector<Text> PlainEntry::risingWords(TextView type) const {
  std::vector<Text> words = wordsOf(type);
  const auto before = [this](TextView a, TextView b) { return judge_->compare(a, b) < 0; };
  const auto same = [this](TextView a, TextView b) { return equal(a, b); };
  std::stable_sort(words.begin(), words.end(), before);
  words.erase(std::unique(words.begin(), words.end(), same), words.end());
  return words;
}

Text PlainEntry::block(TextView key) const {
  for (const Word& word : words_) {
    if (equal(word.type, u"S") && judge_->compare(key, word.text) > 0) return {};
  }
  Text block;
  for (const TextView type : {u"S", u"E", u"D"}) {
    Text head = Text(type).append(u": ");
    for (const Text& word : risingWords(type)) {
      block.append(head).append(word).append(kLineEnd);
      head.clear();
    }
  }
  if (!equal(comment_, {})) {
    block.append(u"C: ").append(kLineEnd).append(comment_).append(kLineEnd);
  }
  return block;
}

bool PlainEntry::find(const std::vector<Text>& terms, TextView type, Text& word) const {
  for (const Text& term : terms) {
    for (const Word& candidate : words_) {
      if (!occursPlainly(*judge_, term, candidate.text)) continue;
      word = candidate.text;
      return true;
    }
    if (occursPlainly(*judge_, term, comment_)) {
      word = wordForComment(type);
      return true;
    }
  }
  return false;
}

Text PlainEntry::wordForComment(TextView type) const {
  for (const Word& word : words_) {
    if (equal(word.type, type)) return word.text;
  }
  return words_.empty() ? Text() : words_.front().text;
}

PlainGlossary readPlainly(const Collator& judge, std::string_view file) {
  PlainGlossary glossary;
  std::vector<Text> lines = linesOf(file);
  if (!lines.empty()) glossary.firstLine = lines.front();
  lines.emplace_back(u"---");
  std::vector<Text> block;
  for (const Text& line : lines) {
    if (!begins(judge, line, u"---")) {
      block.push_back(line);
      continue;
    }
    if (PlainEntry::counts(judge, block)) glossary.entries.emplace_back(judge, block);
    block.clear();
  }
  return glossary;
}

}  // namespace termvik::fuzz
