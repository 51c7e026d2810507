// SPDX-License-Identifier: MIT
#include "columns.h"

#include <algorithm>
#include <array>

namespace termvik::tool {

namespace {

struct Names {
  char16_t letter;
  TextView tag;  // a language tag can have further parts, as in `en-GB`
  std::array<TextView, 3> names;
};

constexpr std::array<Names, 5> kNames{{{u'S', u"sv", {u"S", u"Swedish", u"Svenska"}},
                                       {u'E', u"en", {u"E", u"English", u"Engelska"}},
                                       {u'D', u"de", {u"German", u"Tyska", u"Deutsch"}},
                                       {u'F', u"fr", {u"French", u"Franska", u"Français"}},
                                       {u'C', u"", {u"Comment", u"Kommentar", u"Note"}}}};

}  // namespace

std::optional<Column> columnNamed(const Collation& collation, TextView name) {
  name = trim(name);
  const TextView firstPart = name.substr(0, name.find_first_of(u"-_"));
  for (const Names& known : kNames) {
    const auto isName = [&](TextView n) { return collation.equal(name, n); };
    const bool named =
        isName({&known.letter, 1}) || std::any_of(known.names.begin(), known.names.end(), isName);
    if (!collation.isEmpty(name) &&
        (named || (!known.tag.empty() && collation.equal(firstPart, known.tag)))) {
      return columnOf(known.letter);
    }
  }
  return std::nullopt;
}

bool anyTwice(const std::vector<Column>& columns) {
  return std::any_of(columns.begin(), columns.end(), [&](Column column) {
    return column != Column::None && std::count(columns.begin(), columns.end(), column) > 1;
  });
}

bool anyUsed(const std::vector<Column>& columns) {
  return std::any_of(columns.begin(), columns.end(), [](Column c) { return c != Column::None; });
}

std::optional<std::vector<Column>> columnsOfList(const Collation& collation, TextView list) {
  std::vector<Column> columns;
  for (;;) {
    const std::size_t end = std::min(list.find(u','), list.size());
    const TextView name = trim(list.substr(0, end));
    const auto column = name == u"_" ? Column::None : columnNamed(collation, name);
    if (!column) return std::nullopt;
    columns.push_back(*column);
    if (end == list.size()) break;
    list.remove_prefix(end + 1);
  }
  if (!anyUsed(columns) || anyTwice(columns)) return std::nullopt;
  return columns;
}

}  // namespace termvik::tool
