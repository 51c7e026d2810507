// SPDX-License-Identifier: MIT
// The toolkit of Qt Widgets. Needs a QApplication.
#pragma once

#include <vector>

#include "common/toolkit/toolkit.h"

namespace termvik {

class QtToolkit : public Toolkit {
 public:
  explicit QtToolkit(const Collation& collation) : collation_(collation) {}

  // The program's name for desktops, and what else all its windows share.
  static void setUpApplication();

  // Gives the program its icon, once. Its pictures take longer to decode than the window takes to
  // be built, so that they wait until the first window is there (bench/start).
  static void showIcon();

  std::unique_ptr<Window> createWindow(const WindowDesign& design) override;
  std::vector<Window*> Forms() const override { return open_; }
  void MsgBox(TextView prompt) override;
  bool setClipboardText(TextView text) override;

 private:
  friend class QtWindow;

  void opened(Window& window) { open_.push_back(&window); }
  void closed(Window& window) { std::erase(open_, &window); }

  const Collation& collation_;
  std::vector<Window*> open_;
};

}  // namespace termvik
