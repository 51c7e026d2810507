// SPDX-License-Identifier: MIT
// Both glossary files through all that the program shows of them: the lists of four languages, each
// article, the report of doublets and the export, against a plain reading.
#include <array>
#include <string>

#include "input.h"
#include "session.h"

namespace termvik::fuzz {

void fuzz(Input& input) {
  constexpr std::size_t kMost = 4096;
  struct Language {
    TextView menuItem;
    TextView type;
  };
  static constexpr std::array<Language, 4> kLanguages = {
      {{u"mnuSwedish", u"S"}, {u"mnuEnglish", u"E"}, {u"mnuGerman", u"D"}, {u"mnuFrance", u"F"}}};
  const Collation& collation = input.collation();
  const std::string tools = input.bytes(kMost);
  Session session(collation, {input.allBytes(), tools});
  session.start(2);
  for (const auto& [menuItem, type] : kLanguages) {
    session.chooseLanguage(menuItem, type);
    session.clickEachRow();
    session.copyDoublets();
    session.exportRows();
  }
}

}  // namespace termvik::fuzz
