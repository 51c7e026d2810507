// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <map>
#include <utility>
#include <vector>

#include "lower_case.h"
#include "tbx.h"
#include "xml_reader.h"

namespace termvik::tool {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

template <std::size_t Count>
bool isOneOf(std::string_view name, const std::array<std::string_view, Count>& names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// The names that the versions of the format have for one thing.
bool isRoot(std::string_view element) {
  return isOneOf<4>(element, {"martif", "tbx", "TBX", "Tbx"});
}
bool isConcept(std::string_view element) {
  return isOneOf<3>(element, {"termEntry", "conceptEntry", "entry"});
}
bool isComment(std::string_view element, const XmlHandler::Attributes& attributes) {
  return isOneOf<2>(element, {"note", "definition"}) ||
         (element == "descrip" && attributes["type"] == "definition");
}

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  const std::size_t end = text.find_last_not_of(kBlanks) + 1;  // 0 when there are only blanks
  return text.substr(begin, std::max(begin, end) - begin);
}

std::string firstPart(std::string_view language) {
  return lowerCase(language.substr(0, language.find_first_of("-_")));
}

// The word type of a language; 0 for one that the program does not have.
char16_t wordTypeOf(std::string_view language) {
  if (language == "sv") return u'S';
  if (language == "en") return u'E';
  if (language == "de") return u'D';
  if (language == "fr") return u'F';
  return u'\0';
}

class TbxHandler : public XmlHandler {
 public:
  TbxHandler(std::uint16_t input, std::size_t size, WordList& list, Messages& messages)
      : input_(input), size_(size), list_(list), messages_(messages) {}

  void begin(std::string_view element, const Attributes& attributes) override;
  void end() override;
  void text(std::string_view utf8) override {
    if (collecting_ != Collecting::Nothing) text_.append(utf8);
  }
  void leftOut(std::string_view entity) override {
    messages_.tell(Severity::Warning, here(),
                   "the text of &" + std::string(entity) + "; lies outside the file, " +
                       "from where nothing is loaded");
  }

  bool isTbx() const { return isTbx_; }

  // Tells what words of other languages were met.
  void finish();

 private:
  enum class Collecting : std::uint8_t { Nothing, Term, Comment };

  // A language of the file. Words of one that the program lacks are counted.
  struct Language {
    char16_t wordType = u'\0';
    Place firstWord;
    std::size_t words = 0;
  };

  Language& languageOf(std::string_view tag);

  Place here() const { return {place->line(), input_}; }
  void endCollecting();
  void endConcept();

  std::uint16_t input_;
  std::size_t size_;
  WordList& list_;
  Messages& messages_;
  bool isTbx_ = false;
  std::map<std::string, Language, std::less<>> languages_;  // by the first parts of their tags
  std::map<std::string, Language*, std::less<>> tags_;      // as they stand in the file
  std::vector<Language*> open_;   // of the open elements: each has its own or its parent's
  std::size_t conceptDepth_ = 0;  // of the open concept; 0 when there is none
  Entry entry_;
  Collecting collecting_ = Collecting::Nothing;
  std::size_t collectingDepth_ = 0;
  Place collectingPlace_;
  std::string text_;
};

TbxHandler::Language& TbxHandler::languageOf(std::string_view tag) {
  const auto known = tags_.find(tag);
  if (known != tags_.end()) return *known->second;
  const std::string name = firstPart(tag);
  Language& language =
      languages_.try_emplace(name, Language{wordTypeOf(name), {}, 0}).first->second;
  tags_.emplace(tag, &language);
  return language;
}

void TbxHandler::begin(std::string_view element, const Attributes& attributes) {
  if (open_.empty()) isTbx_ = isRoot(element);
  const std::string_view language = attributes["lang"];
  const bool inherits = language.empty() && !open_.empty();
  open_.push_back(inherits ? open_.back() : &languageOf(language));
  if (conceptDepth_ == 0 && isConcept(element)) {
    isTbx_ = isTbx_ || element != "entry";  // many an XML that is no TBX has one of these
    conceptDepth_ = open_.size();
    entry_.clear();
    entry_.place = here();
  }
  if (conceptDepth_ == 0 || collecting_ != Collecting::Nothing) return;
  if (element == "term") collecting_ = Collecting::Term;
  if (isComment(element, attributes)) collecting_ = Collecting::Comment;
  if (collecting_ == Collecting::Nothing) return;
  collectingDepth_ = open_.size();
  collectingPlace_ = here();
  text_.clear();
}

void TbxHandler::end() {
  const std::size_t depth = open_.size();
  if (collecting_ != Collecting::Nothing && depth == collectingDepth_) endCollecting();
  if (depth == conceptDepth_) endConcept();
  open_.pop_back();
}

void TbxHandler::endCollecting() {
  const bool isTerm = std::exchange(collecting_, Collecting::Nothing) == Collecting::Term;
  const std::string_view text = withoutBlanks(text_);
  if (text.empty()) return;
  const auto begin = text_.begin() + (text.data() - text_.data());
  collectingPlace_.line += static_cast<std::uint32_t>(std::count(text_.begin(), begin, '\n'));
  Language& language = *open_.back();
  if (!isTerm) {
    entry_.comment.push_back({list_.keepUtf8(text), collectingPlace_});
  } else if (language.wordType != u'\0') {
    entry_.words.push_back({list_.keepUtf8(text), collectingPlace_, language.wordType});
  } else if (++language.words == 1) {
    language.firstWord = collectingPlace_;
  }
}

void TbxHandler::endConcept() {
  conceptDepth_ = 0;
  messages_.progress("reading", place->offset(), size_);
  if (entry_.words.empty()) {
    messages_.tell(Severity::Note, entry_.place,
                   "the concept has no word in sv, en, de or fr and is passed over");
  } else {
    list_.add(entry_);
  }
}

void TbxHandler::finish() {
  for (const auto& [name, language] : languages_) {
    if (language.words == 0) continue;
    const std::string of =
        name.empty() ? "without a language" : "of the language " + inQuotes(fromUtf8(name));
    messages_.tell(Severity::Warning, language.firstWord,
                   counted(language.words, "word ", "words ") + of +
                       (language.words == 1 ? " is" : " are") + " passed over");
  }
}

}  // namespace

void readTbx(Input& file, std::uint16_t input, std::optional<Encoding> encoding, WordList& list,
             Messages& messages) {
  TbxHandler handler(input, file.size(), list, messages);
  readXml(file, encoding, handler);
  if (!handler.isTbx()) {
    throw Failure(placeText(file.name(), 1) + "error: this XML is no TBX");
  }
  handler.finish();
}

}  // namespace termvik::tool
