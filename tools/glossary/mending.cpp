// SPDX-License-Identifier: MIT
#include "mending.h"

#include <algorithm>

namespace termvik::tool {

void dropWordless(WordList& list, Messages& messages) {
  std::erase_if(list.entries, [&](const Entry& entry) {
    if (entry.words.empty() && !entry.comment.empty()) {
      messages.tell(Severity::Warning, entry.place,
                    "no word of the entry is left; its comment is left out as well");
    }
    return entry.words.empty();
  });
}

void keepLanguages(WordList& list, Messages& messages) {
  const auto isOther = [](const Word& word) { return !isLanguage(word.type); };
  for (Entry& entry : list.entries) {
    const auto first = std::find_if(entry.words.begin(), entry.words.end(), isOther);
    if (first == entry.words.end()) continue;
    messages.tell(Severity::Warning, first->place,
                  inQuotes(first->text) + " is of the word type " + inQuotes({&first->type, 1}) +
                      ", which the format lacks; such words are left out");
    std::erase_if(entry.words, isOther);
  }
  std::erase_if(list.entries, [](const Entry& entry) { return entry.words.empty(); });
}

}  // namespace termvik::tool
