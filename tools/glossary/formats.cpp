// SPDX-License-Identifier: MIT
#include "formats.h"

#include <algorithm>
#include <utility>

#include "lower_case.h"

namespace termvik::tool {

namespace {

using Name = std::pair<std::string_view, Format>;

constexpr std::array<Name, 5> kNames{{{"glossary", Format::Glossary},
                                      {"tsv", Format::Tsv},
                                      {"csv", Format::Csv},
                                      {"tbx", Format::Tbx},
                                      {"omegat", Format::OmegaT}}};

constexpr std::array<Name, 7> kEndings{{{".txt", Format::Glossary},
                                        {".tsv", Format::Tsv},
                                        {".tab", Format::Tsv},
                                        {".csv", Format::Csv},
                                        {".tbx", Format::Tbx},
                                        {".xml", Format::Tbx},
                                        {".utf8", Format::OmegaT}}};

}  // namespace

std::optional<Format> formatNamed(std::string_view name) {
  const auto* const found =
      std::find_if(kNames.begin(), kNames.end(), [name](const Name& n) { return n.first == name; });
  return found == kNames.end() ? std::nullopt : std::optional(found->second);
}

std::optional<Format> formatOfFile(const std::string& fileName) {
  const std::string lower = lowerCase(fileName);
  const auto* const found = std::find_if(kEndings.begin(), kEndings.end(),
                                         [&](const Name& n) { return lower.ends_with(n.first); });
  return found == kEndings.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace termvik::tool
