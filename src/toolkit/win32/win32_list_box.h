// SPDX-License-Identifier: MIT
// The sorted list: a list view over the rows, without a copy of any of them.
#pragma once

#include <array>
#include <string>

#include "win32_controls.h"

// After the header that it needs.
#include <commctrl.h>

namespace termvik {

class Win32ListBox : public Win32Control<ListBox> {
 public:
  Win32ListBox(Win32Window& window, const ControlDesign& design, const Collation& collation);

  LRESULT reports(NMHDR& header) override;

 protected:
  void showRows() override;
  void showRowText(std::int32_t) override { showRows(); }
  void showSelection() override;
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void bringUpToDate();
  void selectQuietly();
  void keepSelection();
  void fitColumn() const;
  void selectionChanges(const NMLISTVIEW& change);
  LRESULT colourRow(NMLVCUSTOMDRAW& drawn) const;
  Text textOf(std::int32_t row) const;
  void giveText(LVITEMW& item);
  LRESULT findRow(const NMLVFINDITEMW& wanted) const;

  bool stale_ = false;      // the view has not yet heard of the last change of the rows
  bool selecting_ = false;  // the program moves the selection, not the user
  bool painting_ = false;

  // What the view was given last: it reads a text until it has asked for two more.
  std::array<std::wstring, 3> given_;
  std::size_t nextGiven_ = 0;
};

}  // namespace termvik
