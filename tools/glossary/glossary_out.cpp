// SPDX-License-Identifier: MIT
#include <algorithm>

#include "code_page_mender.h"
#include "common/system/windows_1252.h"
#include "glossary/line_table.h"
#include "glossary_file.h"
#include "mending.h"
#include "text_out.h"

namespace termvik::tool {

namespace {

// The languages in their order, then all other word types.
std::size_t rankOf(char16_t wordType) {
  return std::min(kLanguages.find(wordType), kLanguages.size());
}

// Brings entries into what the format can hold.
class Mender {
 public:
  Mender(WordList& list, bool lossy, const Collation& collation, Messages& messages)
      : list_(list), lossy_(lossy), lines_(collation), collation_(collation), messages_(messages) {}

  void mend(Entry& entry) {
    for (Word& word : entry.words) mendWord(word);
    std::erase_if(entry.words, [](const Word& word) { return word.text.empty(); });
    const auto isAhead = [](const Word& a, const Word& b) {
      return rankOf(a.type) < rankOf(b.type);
    };
    if (!std::is_sorted(entry.words.begin(), entry.words.end(), isAhead)) {
      std::stable_sort(entry.words.begin(), entry.words.end(), isAhead);
    }
    if (!entry.comment.empty()) mendComment(entry);
  }

 private:
  void mendWord(Word& word) {
    word.text = trimEnd(word.text);
    if (!isPlainInCodePage({&word.type, 1})) {
      word.type = inCodePage({&word.type, 1}, word.place, lossy_, messages_).front();
    }
    if (isPlainInCodePage(word.text)) return;
    if (word.text.find_first_of(kLineEnd) != TextView::npos) {
      messages_.tell(Severity::Warning, word.place,
                     "the line end in " + inQuotes(word.text) + " becomes a blank");
    }
    const Text text = inCodePage(inOneLine(word.text), word.place, lossy_, messages_);
    word.text = list_.keep(trimEnd(text));
  }

  // All pieces become one, of lines that neither end the entry nor begin a new comment.
  void mendComment(Entry& entry) {
    TextView& first = entry.comment.front().text;
    first = trimEnd(first);
    const bool isOneLine = entry.comment.size() == 1 && isPlainInCodePage(first);
    if (isOneLine && !collation_.isEmpty(first)) return;
    Text all;
    bool any = false;
    for (const CommentPiece& piece : entry.comment) {
      Place place = piece.place;
      for (const TextView plain : linesOf(piece.text)) {
        const Text line = mendedLine(trimEnd(plain), place, !any);
        ++place.line;
        if (!any && collation_.isEmpty(line)) continue;
        if (any) all += u'\n';
        all.append(line);
        any = true;
      }
    }
    const Place place = entry.comment.front().place;
    entry.comment.clear();
    if (any) entry.comment.push_back({list_.keep(all), place});
  }

  // The first line of a comment stands after its mark, where it can be anything.
  Text mendedLine(TextView plain, Place place, bool isFirst) {
    Text line =
        isPlainInCodePage(plain) ? Text(plain) : inCodePage(plain, place, lossy_, messages_);
    const LineKind kind = lines_.kindOf(line);
    if (isFirst || (kind != LineKind::Separator && kind != LineKind::CommentHead)) return line;
    const bool ends = kind == LineKind::Separator;
    messages_.tell(Severity::Warning, place,
                   inQuotes(line) + (ends ? " would end the entry" : " would begin a new comment") +
                       "; it gets a blank in front");
    return u' ' + line;
  }

  WordList& list_;
  bool lossy_;
  LineTable lines_;  // empty; it knows what a line is
  const Collation& collation_;
  Messages& messages_;
};

// All characters are in the code page, and nearly all have the code of their byte: the compiler
// narrows a stretch of them at once.
std::string encoded(TextView text) {
  constexpr std::size_t kStretch = 64;
  constexpr unsigned kLastByte = 0xFF;
  std::string bytes(text.size(), '\0');
  for (std::size_t begin = 0; begin < text.size(); begin += kStretch) {
    const TextView stretch = text.substr(begin, kStretch);
    char* const out = &bytes[begin];
    unsigned all = 0;
    for (std::size_t i = 0; i < stretch.size(); ++i) {
      out[i] = static_cast<char>(stretch[i]);
      all |= stretch[i];
    }
    if (all > kLastByte) std::transform(stretch.begin(), stretch.end(), out, windows1252::encode);
  }
  return bytes;
}

// Blanks after the mark would be lost, those of a line of its own stay.
void writeComment(TextView comment, TextOutput& out) {
  out << (comment.starts_with(u' ') ? TextView(u"C:\r\n") : TextView(u"C: "));
  for (std::size_t end = comment.find(u'\n'); end != TextView::npos; end = comment.find(u'\n')) {
    out << comment.substr(0, end) << kLineEnd;
    comment.remove_prefix(end + 1);
  }
  out << comment << kLineEnd;
}

void writeEntry(const Entry& entry, TextOutput& out) {
  for (const Word& word : entry.words) {
    out << TextView(&word.type, 1) << u": " << word.text << kLineEnd;
  }
  if (!entry.comment.empty()) writeComment(entry.comment.front().text, out);
  out << u"---\r\n";
}

}  // namespace

bool isFirstLine(const Collation& collation, TextView line) {
  const LineKind kind = LineTable(collation).kindOf(trimEnd(line));
  return kind == LineKind::Empty || kind == LineKind::Other;
}

bool isTitle(const Collation& collation, TextView title) {
  return isPlainInCodePage(title) && isFirstLine(collation, title);
}

Text titleOfFile(const Collation& collation, TextView fileName) {
  Text title;
  for (const char16_t character : fileName) {
    title += isPlainInCodePage({&character, 1}) ? character : u'?';
  }
  if (title.size() > 1 && title[1] == u':') title[1] = u' ';
  return isTitle(collation, title) ? title : u' ' + title;
}

void mendForGlossary(WordList& list, Title& title, bool lossy, const Collation& collation,
                     Messages& messages) {
  if (!isPlainInCodePage(title.text))
    title.text = inCodePage(title.text, title.place, lossy, messages);
  Mender mender(list, lossy, collation, messages);
  for (Entry& entry : list.entries) mender.mend(entry);
  dropWordless(list, messages);
}

void writeGlossary(const WordList& list, TextView title, Output& output) {
  TextOutput out(output, encoded);
  out << title << u"\r\n---\r\n";
  for (const Entry& entry : list.entries) writeEntry(entry, out);
  out.flush();
}

}  // namespace termvik::tool
