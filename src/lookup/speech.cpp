// SPDX-License-Identifier: MIT
// When the main window speaks, to a person who does not see it: at the end of each of the user's
// acts that has moved the selection or changed what the list holds.
#include "lookup/frm_glossary.h"
#include "spoken.h"

namespace termvik {

// For acts in the search box, in the list and in the menu, which gives the focus back to them.
void frmGlossary::sayRow(TextView before) {
  if (!window_->isHeard()) return;
  Text row;
  if (lstWords_.ListIndex() >= 0) {
    row = spoken::sentences(lstWords_.rowName(lstWords_.ListIndex()),
                            spoken::lines(txtArticle_.text()));
  } else if (before.empty()) {
    row = listSize();
  }
  window_->say(spoken::sentences(before, row));
}

// For a row that the user has selected in the list itself.
void frmGlossary::sayArticle() {
  if (!window_->isHeard()) return;
  const Text article = spoken::lines(txtArticle_.text());
  window_->say(spoken::sentences(lstWords_.rowName(lstWords_.ListIndex()), article), article);
}

// For what is chosen beside the list: what it is now, and how much the list holds.
void frmGlossary::sayChange(TextView change) {
  if (!window_->isHeard()) return;
  const Text size = listSize();
  window_->say(spoken::sentences(change, size), size);
}

Text frmGlossary::listSize() const {
  const std::int32_t rows = lstWords_.ListCount();
  return holdsHits_ ? spoken::hits(rows) : spoken::words(rows);
}

TextView frmGlossary::captionOf(TextView option, std::int32_t index) const {
  for (const ControlDesign& design : window_->design().controls) {
    if (design.name == option && design.index == index) return design.caption;
  }
  return {};
}

}  // namespace termvik
