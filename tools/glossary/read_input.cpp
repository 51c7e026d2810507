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
  Input file(name, streams);
  if (format == Format::Tbx) {  // XML says itself what its encoding is
    readTbx(file, input, options.encoding, list, messages);
    return std::nullopt;
  }
  FileBytes fileBytes = readBytes(file);
  const std::string_view bytes = viewOf(fileBytes);
  if (format == Format::Glossary && encodingOf(bytes, options.encoding) == Encoding::Windows1252) {
    return readGlossary(GlossaryLines::ofWindows1252(bytes, collation), input, collation, list,
                        messages);
  }
  const auto owned = std::make_shared<const FileText>(decodeText(bytes, options.encoding, name));
  const TextView text = viewOf(*owned);
  FileBytes().swap(fileBytes);
  if (format == Format::Glossary) {
    return readGlossary(GlossaryLines::ofText(text, collation), input, collation, list, messages);
  }
  list.keepOwner(owned);
  if (format == Format::OmegaT) {
    readOmegaT(text, input, options, list, messages);
  } else {
    const char16_t usual = format == Format::Tsv ? u'\t' : delimiterOf(text);
    readTable(text, input, options, options.delimiter.value_or(usual), collation, list, messages);
  }
  return std::nullopt;
}

}  // namespace termvik::tool
