// The toolkit of Qt Widgets. Needs a QApplication.
#pragma once

#include <vector>

#include "common/toolkit.h"

namespace termvik {

class QtToolkit : public Toolkit {
 public:
  explicit QtToolkit(const Collation& collation) : collation_(collation) {}

  // The program's icon, its name for desktops, and what else all its windows share.
  static void setUpApplication();

  std::unique_ptr<Window> createWindow(const WindowDesign& design) override;
  std::vector<Window*> Forms() const override { return open_; }
  void MsgBox(TextView prompt) override;
  void setClipboardText(TextView text) override;

 private:
  friend class QtWindow;

  void opened(Window& window) { open_.push_back(&window); }
  void closed(Window& window) { std::erase(open_, &window); }

  const Collation& collation_;
  std::vector<Window*> open_;
};

}  // namespace termvik
