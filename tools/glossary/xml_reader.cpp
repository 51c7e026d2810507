// SPDX-License-Identifier: MIT
#include "xml_reader.h"

#include <algorithm>
#include <array>
#include <expat.h>
#include <memory>
#include <new>
#include <span>
#include <type_traits>

#include "common/system/windows_1252.h"
#include "messages.h"

namespace termvik::tool {

namespace {

// Bytes parsed at a time: what is that small stays in the cache.
constexpr int kPiece = 1 << 16;

using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)>;

// Without its prefix, if it has one.
std::string_view localName(const char* name) {
  const char* end = name;
  for (; *end != '\0'; ++end) {
    if (*end == ':') name = end + 1;
  }
  return {name, static_cast<std::size_t>(end - name)};
}

// The line that the parser is at. Newer versions of expat have one function for it, older ones
// another.
std::uint64_t lineOf(XML_Parser parser) {
#if XML_MAJOR_VERSION > 2 || XML_MINOR_VERSION >= 9
  return XML_GetCurrentLineNumber64(parser);
#else
  return XML_GetCurrentLineNumber(parser);
#endif
}

// One run of the parser over a file.
class Reading : public XmlPlace {
 public:
  Reading(XML_Parser parser, XmlHandler& handler) : parser_(parser), handler_(handler) {
    handler_.place = this;
  }
  ~Reading() override { handler_.place = nullptr; }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

  std::uint32_t line() const override { return static_cast<std::uint32_t>(lineOf(parser_)); }
  std::size_t offset() const override {
    return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_));
  }

  static XmlHandler& handlerOf(void* data) { return static_cast<Reading*>(data)->handler_; }

 private:
  XML_Parser parser_;
  XmlHandler& handler_;
};

void XMLCALL onBegin(void* data, const XML_Char* name, const XML_Char** pairs) {
  Reading::handlerOf(data).begin(localName(name), XmlHandler::Attributes(pairs));
}

void XMLCALL onEnd(void* data, const XML_Char*) { Reading::handlerOf(data).end(); }

void XMLCALL onText(void* data, const XML_Char* text, int length) {
  Reading::handlerOf(data).text({text, static_cast<std::size_t>(length)});
}

void XMLCALL onSkippedEntity(void* data, const XML_Char* name, int isParameter) {
  if (isParameter == 0) Reading::handlerOf(data).leftOut(name);
}

// Called for an entity that lies in another file. It is not loaded and the reading goes on.
int XMLCALL onExternalEntity(XML_Parser parser, const XML_Char* name, const XML_Char*,
                             const XML_Char*, const XML_Char*) {
  Reading::handlerOf(XML_GetUserData(parser)).leftOut(name == nullptr ? "" : name);
  return XML_STATUS_OK;
}

// The parser itself knows UTF-8, UTF-16, ISO 8859-1 and ASCII.
int XMLCALL onUnknownEncoding(void*, const XML_Char* name, XML_Encoding* encoding) {
  if (encodingNamed(name) != Encoding::Windows1252) return XML_STATUS_ERROR;
  for (unsigned byte = 0; byte < std::size(encoding->map); ++byte) {
    encoding->map[byte] = windows1252::decode(static_cast<unsigned char>(byte));
  }
  encoding->data = nullptr;
  encoding->convert = nullptr;
  encoding->release = nullptr;
  return XML_STATUS_OK;
}

const char* protocolName(std::optional<Encoding> encoding) {
  if (!encoding) return nullptr;
  constexpr std::array<const char*, 4> kNames = {"UTF-8", "UTF-16LE", "UTF-16BE", "windows-1252"};
  return kNames.at(static_cast<std::size_t>(*encoding));
}

// UTF-16, where the first bytes tell it: with a mark or without.
std::optional<Encoding> utf16Of(std::string_view bytes) {
  if (bytes.starts_with(std::string_view("<\0", 2))) return Encoding::Utf16Le;
  if (bytes.starts_with(std::string_view("\0<", 2))) return Encoding::Utf16Be;
  const auto marked = byteOrderMark(bytes).encoding;
  return marked == Encoding::Utf8 ? std::nullopt : marked;
}

[[noreturn]] void fail(XML_Parser parser, const std::string& name) {
  const auto line = static_cast<std::size_t>(lineOf(parser));
  throw Failure(placeText(name, line) + "error: this is no XML that can be read: " +
                XML_ErrorString(XML_GetErrorCode(parser)));
}

}  // namespace

std::string_view XmlHandler::Attributes::operator[](std::string_view name) const {
  for (const char* const* pair = pairs_; *pair != nullptr; pair += 2) {
    if (localName(*pair) == name) return pair[1];
  }
  return {};
}

void readXml(Input& file, std::optional<Encoding> encoding, XmlHandler& handler) {
  std::array<char, 4> first{};  // bytes, enough to know UTF-16
  std::size_t known = 0;
  for (std::size_t count = 1; known < first.size() && count > 0; known += count) {
    count = file.read(std::span(first).subspan(known));
  }
  if (!encoding) encoding = utf16Of({first.data(), known});
  const Parser parser(XML_ParserCreate(protocolName(encoding)), XML_ParserFree);
  if (!parser) throw std::bad_alloc();
  Reading reading(parser.get(), handler);
  XML_SetUserData(parser.get(), &reading);
  XML_SetElementHandler(parser.get(), onBegin, onEnd);
  XML_SetCharacterDataHandler(parser.get(), onText);
  XML_SetSkippedEntityHandler(parser.get(), onSkippedEntity);
  XML_SetExternalEntityRefHandler(parser.get(), onExternalEntity);
  XML_SetUnknownEncodingHandler(parser.get(), onUnknownEncoding, nullptr);
  XML_SetParamEntityParsing(parser.get(), XML_PARAM_ENTITY_PARSING_NEVER);
  const auto check = [&](XML_Status status) {
    if (status != XML_STATUS_OK) fail(parser.get(), file.name());
  };
  check(XML_Parse(parser.get(), first.data(), static_cast<int>(known), XML_FALSE));
  for (int count = 1; count > 0;) {
    void* const room = XML_GetBuffer(parser.get(), kPiece);
    if (room == nullptr) throw std::bad_alloc();
    count = static_cast<int>(file.read({static_cast<char*>(room), kPiece}));
    check(XML_ParseBuffer(parser.get(), count, count == 0 ? XML_TRUE : XML_FALSE));
  }
}

}  // namespace termvik::tool
