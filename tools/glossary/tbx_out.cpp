// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <utility>

#include "mending.h"
#include "tbx.h"

namespace termvik::tool {

namespace {

constexpr TextView kBegin =
    u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    u"<tbx type=\"TBX-Basic\" style=\"dca\" xml:lang=\"en\" xmlns=\"urn:iso:std:iso:30042:ed-2\">\n"
    u"  <tbxHeader>\n"
    u"    <fileDesc>\n"
    u"      <sourceDesc>\n"
    u"        <p>Written by termvik-glossary</p>\n"
    u"      </sourceDesc>\n"
    u"    </fileDesc>\n"
    u"  </tbxHeader>\n"
    u"  <text>\n"
    u"    <body>\n";
constexpr TextView kEnd = u"    </body>\n  </text>\n</tbx>\n";

// The languages in the order in which they are written.
constexpr std::array<std::pair<char16_t, TextView>, 4> kTags{
    {{u'S', u"sv"}, {u'E', u"en"}, {u'D', u"de"}, {u'F', u"fr"}}};

bool isHigh(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLow(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// XML can hold the character at `at`: no control but tab and line ends, no half of a pair, no
// U+FFFE and U+FFFF.
bool isXml(TextView text, std::size_t at) {
  const char16_t unit = text[at];
  if (isHigh(unit)) return at + 1 < text.size() && isLow(text[at + 1]);
  if (isLow(unit)) return at > 0 && isHigh(text[at - 1]);
  if (unit < u' ') return unit == u'\t' || unit == u'\n' || unit == u'\r';
  return unit < 0xFFFE;
}

bool isAllXml(TextView text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!isXml(text, at)) return false;
  }
  return true;
}

void appendEscaped(Text& xml, TextView text) {
  for (const char16_t character : text) {
    switch (character) {
      case u'&':
        xml.append(u"&amp;");
        break;
      case u'<':
        xml.append(u"&lt;");
        break;
      case u'>':
        xml.append(u"&gt;");
        break;
      case u'\r':
        xml.append(u"&#13;");
        break;
      default:
        xml += character;
    }
  }
}

void appendLanguage(Text& xml, const Entry& entry, char16_t type, TextView tag) {
  if (!hasWord(entry, type)) return;
  xml.append(u"<langSec xml:lang=\"").append(tag).append(u"\">");
  for (const Word& word : entry.words) {
    if (word.type != type) continue;
    xml.append(u"<termSec><term>");
    appendEscaped(xml, word.text);
    xml.append(u"</term></termSec>");
  }
  xml.append(u"</langSec>\n");
}

// `text` without what XML cannot hold.
Text withoutOthers(TextView text, Place place, Messages& messages) {
  Text plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (isXml(text, at)) {
      plain += text[at];
    } else {
      messages.tell(Severity::Warning, place,
                    "XML cannot hold " + codeName(text.substr(at, 1)) + "; it is left out");
    }
  }
  return plain;
}

}  // namespace

void mendForTbx(WordList& list, Messages& messages) {
  for (Entry& entry : list.entries) {
    for (Word& word : entry.words) {
      if (!isAllXml(word.text)) {
        word.text = list.keep(withoutOthers(word.text, word.place, messages));
      }
    }
    std::erase_if(entry.words, [](const Word& word) { return word.text.empty(); });
    for (CommentPiece& piece : entry.comment) {
      if (isAllXml(piece.text)) continue;
      Text mended;
      Place place = piece.place;
      for (const TextView line : linesOf(piece.text)) {
        if (place.line > piece.place.line) mended += u'\n';
        mended.append(withoutOthers(line, place, messages));
        ++place.line;
      }
      piece.text = list.keep(mended);
    }
  }
  dropWordless(list, messages);
}

void writeTbx(const WordList& list, TextOutput& out) {
  out << kBegin;
  Text xml;
  Text room;
  std::size_t number = 0;
  for (const Entry& entry : list.entries) {
    xml.assign(u"<conceptEntry id=\"c").append(fromUtf8(std::to_string(++number)));
    xml.append(u"\">\n");
    if (const TextView comment = commentText(entry, room); !comment.empty()) {
      xml.append(u"<note>");
      appendEscaped(xml, comment);
      xml.append(u"</note>\n");
    }
    for (const auto& [type, tag] : kTags) appendLanguage(xml, entry, type, tag);
    out << xml.append(u"</conceptEntry>\n");
  }
  out << kEnd;
  out.flush();
}

}  // namespace termvik::tool
