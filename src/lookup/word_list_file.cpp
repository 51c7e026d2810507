// SPDX-License-Identifier: MIT
// Writes the entries behind the rows of the list as a glossary file of their own.
#include "common/system/codepage.h"
#include "common/system/files.h"
#include "lookup/frm_glossary.h"

namespace termvik {

namespace {

constexpr TextView kWrittenTypes = u"SED";
constexpr std::string_view kSeparatorLine = "---\r\n";

}  // namespace

void frmGlossary::mnuCreateWordList_Click() {
  const std::filesystem::path path = fileIn(app_.Path, u"tmpWordList.txt");
  const bool written = writeFile(*app_.files, path, wordListBytes());
  toolkit_.MsgBox(Text(written ? u"Ny ordlista i filen " : u"Could not write the file ")
                      .append(pathText(path)));
}

std::string frmGlossary::wordListBytes() const {
  std::string bytes;
  for (std::int32_t row = 0; row < lstWords_.ListCount(); ++row) {
    const clsWEntry& entry = words_.gEntries(lstWords_.ItemData(row));
    const Text block = entry.articleForFile(kWrittenTypes, lstWords_.List(row));
    if (!words_.collation().isEmpty(block)) bytes.append(encodeAnsi(block)).append(kSeparatorLine);
  }
  return bytes;
}

}  // namespace termvik
