// SPDX-License-Identifier: MIT
// The toolkit without a screen: keeps the contract and shows nothing. For tests, benchmarks
// and termvik-replay.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "common/toolkit/toolkit.h"

namespace termvik {

class MemoryWindow;

class MemoryToolkit : public Toolkit {
 public:
  MemoryToolkit(const Collation& collation, ScreenSize screen)
      : collation_(&collation), screen_(screen) {}

  std::unique_ptr<Window> createWindow(const WindowDesign& design) override;
  std::vector<Window*> Forms() const override { return open_; }
  void MsgBox(TextView prompt) override;
  bool setClipboardText(TextView text) override;

  const ScreenSize& screen() const { return screen_; }

  // What is shown goes here. A modal window is unloaded when its handler returns.
  std::function<void(TextView prompt)> showMessage;
  std::function<void(TextView text)> showClipboard;
  std::function<void(Window& window)> showModal;

 private:
  friend class MemoryWindow;

  const Collation* collation_;
  ScreenSize screen_;
  std::vector<Window*> open_;
};

}  // namespace termvik
