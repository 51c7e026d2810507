// SPDX-License-Identifier: MIT
// An XML file, told element by element. No external entity and no DTD is ever loaded.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text_in.h"

namespace termvik::tool {

// What is told of an XML file. Names are without their prefix, texts in UTF-8.
class XmlHandler {
 public:
  virtual ~XmlHandler() = default;

  // The attributes are asked for while the element is told.
  class Attributes {
   public:
    explicit Attributes(const char* const* pairs) : pairs_(pairs) {}
    // Of the attribute with that name, whatever its prefix; empty when there is none.
    std::string_view operator[](std::string_view name) const;

   private:
    const char* const* pairs_;
  };

  virtual void begin(std::string_view element, const Attributes& attributes) = 0;
  virtual void end() = 0;
  virtual void text(std::string_view utf8) = 0;
  virtual void leftOut(std::string_view entity) = 0;  // its text is not to be had

  std::size_t offset = 0;  // in the file, of what is told
};

// Reads a whole file. `encoding` overrules what the file says of itself. `name` is the file's for
// the Failure that is thrown when it is no XML.
void readXml(std::string_view bytes, std::optional<Encoding> encoding, const std::string& name,
             XmlHandler& handler);

}  // namespace termvik::tool
