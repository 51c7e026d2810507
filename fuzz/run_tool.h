// SPDX-License-Identifier: MIT
// Conversions by termvik-glossary in memory.
#pragma once

#include <sstream>
#include <string>

#include "convert.h"
#include "input.h"

namespace termvik::fuzz {

struct Converted {
  bool isWritten = false;
  std::string out;
  std::string told;
};

// `input` in another format; read as UTF-8 where `isUtf8` is set, otherwise in the encoding that
// the tool finds out.
inline Converted convert(const Collation& collation, const std::string& input, tool::Format from,
                         tool::Format to, bool isUtf8) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  tool::Streams streams{.in = in, .out = out, .err = err};
  tool::Messages messages(err, false);
  tool::Options options{.command = tool::Command::Convert,
                        .inputs = {"-"},
                        .inputFormats = {from},
                        .output = "-",
                        .outputFormat = to};
  if (isUtf8) options.read.encoding = tool::Encoding::Utf8;
  bool isWritten = false;
  try {
    tool::convert(options, collation, streams, messages);
    isWritten = !messages.anyError();
  } catch (const tool::Failure&) {  // the one that the tool tells of
  }
  expect(isWritten || out.str().empty(), "a run that fails writes nothing");
  return {isWritten, out.str(), err.str()};
}

// What the tool has read and written is read again as the same, directly and through `other`.
inline void expectSameBack(const Collation& collation, const std::string& input,
                           tool::Format format, tool::Format other) {
  const Converted written = convert(collation, input, format, format, false);
  if (!written.isWritten) return;
  const Converted again = convert(collation, written.out, format, format, true);
  expectSame(again.out, written.out, "read and written again");
  expectSame(again.told, "", "nothing to tell of what the tool has written");
  const Converted there = convert(collation, written.out, format, other, true);
  const Converted back = convert(collation, there.out, other, format, true);
  expectSame(back.out, written.out, "there and back through another format");
}

}  // namespace termvik::fuzz
