// SPDX-License-Identifier: MIT
#include "read_input.h"

#include "cells.h"
#include "files_in_out.h"
#include "glossary_file.h"
#include "omegat.h"
#include "table.h"
#include "tbx.h"

namespace termvik::tool {

std::optional<Text> readInput(std::uint16_t input, Format format, const ReadOptions& options,
                              const Collation& collation, Streams& streams, WordList& list,
                              Messages& messages) {
  const std::string& name = messages.inputName(input);
  std::string bytes = readBytes(name, streams);
  if (format == Format::Tbx) {  // XML says itself what its encoding is
    readTbx(bytes, input, options.encoding, list, messages);
    return std::nullopt;
  }
  if (format == Format::Glossary) {
    const bool isPlain = encodingOf(bytes, options.encoding) == Encoding::Windows1252;
    return readGlossary(
        isPlain ? GlossaryLines::ofWindows1252(bytes, collation)
                : GlossaryLines::ofText(decodeText(bytes, options.encoding, name), collation),
        input, collation, list, messages);
  }
  const auto owned = std::make_shared<const Text>(decodeText(bytes, options.encoding, name));
  list.keepOwner(owned);
  const Text& text = *owned;
  std::string().swap(bytes);
  if (format == Format::OmegaT) {
    readOmegaT(text, input, options, list, messages);
  } else {
    const char16_t usual = format == Format::Tsv ? u'\t' : delimiterOf(text);
    readTable(text, input, options, options.delimiter.value_or(usual), collation, list, messages);
  }
  return std::nullopt;
}

}  // namespace termvik::tool
