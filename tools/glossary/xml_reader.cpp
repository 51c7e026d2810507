// SPDX-License-Identifier: MIT
#include "xml_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <expat.h>
#include <memory>
#include <type_traits>

#include "common/system/windows_1252.h"
#include "messages.h"

namespace termvik::tool {

namespace {

// Bytes parsed at a time: the parser copies them, and what is that small stays in the cache.
constexpr std::size_t kPiece = 1U << 16U;

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
struct Reading {
  XML_Parser parser;
  XmlHandler& handler;

  static Reading& of(void* data) { return *static_cast<Reading*>(data); }
  static Reading& at(void* data) {
    Reading& reading = of(data);
    reading.handler.offset = static_cast<std::size_t>(XML_GetCurrentByteIndex(reading.parser));
    return reading;
  }
};

void XMLCALL onBegin(void* data, const XML_Char* name, const XML_Char** pairs) {
  Reading::at(data).handler.begin(localName(name), XmlHandler::Attributes(pairs));
}

void XMLCALL onEnd(void* data, const XML_Char*) { Reading::of(data).handler.end(); }

void XMLCALL onText(void* data, const XML_Char* text, int length) {
  Reading::of(data).handler.text({text, static_cast<std::size_t>(length)});
}

void XMLCALL onSkippedEntity(void* data, const XML_Char* name, int isParameter) {
  if (isParameter == 0) Reading::at(data).handler.leftOut(name);
}

// Called for an entity that lies in another file. It is not loaded and the reading goes on.
int XMLCALL onExternalEntity(XML_Parser parser, const XML_Char* name, const XML_Char*,
                             const XML_Char*, const XML_Char*) {
  Reading::at(XML_GetUserData(parser)).handler.leftOut(name == nullptr ? "" : name);
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

void readXml(std::string_view bytes, std::optional<Encoding> encoding, const std::string& name,
             XmlHandler& handler) {
  const Parser parser(XML_ParserCreate(protocolName(encoding)), XML_ParserFree);
  if (!parser) throw Failure(name + ": error: no memory is left");
  Reading reading{parser.get(), handler};
  XML_SetUserData(parser.get(), &reading);
  XML_SetElementHandler(parser.get(), onBegin, onEnd);
  XML_SetCharacterDataHandler(parser.get(), onText);
  XML_SetSkippedEntityHandler(parser.get(), onSkippedEntity);
  XML_SetExternalEntityRefHandler(parser.get(), onExternalEntity);
  XML_SetUnknownEncodingHandler(parser.get(), onUnknownEncoding, nullptr);
  XML_SetParamEntityParsing(parser.get(), XML_PARAM_ENTITY_PARSING_NEVER);
  do {
    const std::string_view piece = bytes.substr(0, kPiece);
    bytes.remove_prefix(piece.size());
    const int isLast = bytes.empty() ? XML_TRUE : XML_FALSE;
    if (XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()), isLast) !=
        XML_STATUS_OK) {
      fail(parser.get(), name);
    }
  } while (!bytes.empty());
}

}  // namespace termvik::tool
