// SPDX-License-Identifier: MIT
// An XML file, told element by element. No external entity and no DTD is ever loaded.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "files_in_out.h"
#include "text_in.h"

namespace termvik::tool {

// Where in the file the element begins that is being told.
class XmlPlace {
 public:
  virtual ~XmlPlace() = default;
  virtual std::uint32_t line() const = 0;
  virtual std::size_t offset() const = 0;
};

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

  const XmlPlace* place = nullptr;  // while anything is told
};

// Reads a whole file. `encoding` overrules what the file says of itself. Throws Failure when it is
// no XML.
void readXml(Input& file, std::optional<Encoding> encoding, XmlHandler& handler);

}  // namespace termvik::tool
