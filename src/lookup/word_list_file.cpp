// Writes the entries behind the rows of the list as a glossary file of their own.
#include "common/codepage.h"
#include "common/files.h"
#include "lookup/frm_glossary.h"

namespace termvik {

namespace {

constexpr TextView kWrittenTypes = u"SED";

bool write(const File& file, TextView text) {
  const std::string bytes = encodeAnsi(text);
  return std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
}

}  // namespace

void frmGlossary::mnuCreateWordList_Click() {
  const std::filesystem::path path = fileIn(app_.Path, u"tmpWordList.txt");
  const bool written = writeWordList(path);
  toolkit_.MsgBox(Text(written ? u"Ny ordlista i filen " : u"Could not write the file ")
                      .append(pathText(path)));
}

bool frmGlossary::writeWordList(const std::filesystem::path& path) {
  File file = openToWrite(path);
  if (!file) return false;
  bool written = true;
  for (std::int32_t row = 0; row < lstWords_.ListCount() && written; ++row) {
    const clsWEntry& entry = words_.gEntries(lstWords_.ItemData(row));
    const Text block = entry.articleForFile(kWrittenTypes, lstWords_.List(row));
    if (words_.collation().isEmpty(block)) continue;
    written = write(file, block) && write(file, u"---\r\n");
  }
  return std::fclose(file.release()) == 0 && written;
}

}  // namespace termvik
