// SPDX-License-Identifier: MIT
#include <algorithm>

#include "code_page_mender.h"
#include "common/system/windows_1252.h"
#include "glossary/line_table.h"
#include "glossary_file.h"
#include "mending.h"

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

// Nearly all texts are ASCII, which the compiler narrows many characters at a time.
void append(std::string& bytes, TextView text) {
  const std::size_t size = bytes.size();
  bytes.resize(size + text.size());
  char* const out = &bytes[size];
  unsigned all = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    out[i] = static_cast<char>(text[i]);
    all |= text[i];
  }
  if (all >= windows1252::kFirstSpecial) {
    std::transform(text.begin(), text.end(), out, windows1252::encode);
  }
}

// Blanks after the mark would be lost, those of a line of its own stay.
void appendComment(std::string& bytes, TextView comment) {
  append(bytes, comment.starts_with(u' ') ? u"C:\r\n" : u"C: ");
  for (std::size_t end = comment.find(u'\n'); end != TextView::npos; end = comment.find(u'\n')) {
    append(bytes, comment.substr(0, end));
    append(bytes, kLineEnd);
    comment.remove_prefix(end + 1);
  }
  append(bytes, comment);
  append(bytes, kLineEnd);
}

void appendEntry(std::string& bytes, const Entry& entry) {
  for (const Word& word : entry.words) {
    append(bytes, {&word.type, 1});
    append(bytes, u": ");
    append(bytes, word.text);
    append(bytes, kLineEnd);
  }
  if (!entry.comment.empty()) appendComment(bytes, entry.comment.front().text);
  append(bytes, u"---\r\n");
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

void writeGlossary(const WordList& list, TextView title, Output& out) {
  constexpr std::size_t kPiece = 1U << 16U;
  std::string bytes;
  append(bytes, title);
  append(bytes, u"\r\n---\r\n");
  for (const Entry& entry : list.entries) {
    appendEntry(bytes, entry);
    if (bytes.size() < kPiece) continue;
    out.write(bytes);
    bytes.clear();
  }
  out.write(bytes);
}

}  // namespace termvik::tool
