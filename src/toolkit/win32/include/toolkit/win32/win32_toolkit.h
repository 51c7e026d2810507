// SPDX-License-Identifier: MIT
// The toolkit of the Windows API.
#pragma once

#include <functional>
#include <vector>
#include <windows.h>

#include "common/toolkit/toolkit.h"

namespace termvik {

class Win32Window;

class Win32Toolkit : public Toolkit {
 public:
  // Makes what all windows share, for this thread. One at a time.
  explicit Win32Toolkit(const Collation& collation);
  ~Win32Toolkit() override;

  std::unique_ptr<Window> createWindow(const WindowDesign& design) override;
  std::vector<Window*> Forms() const override;
  void MsgBox(TextView prompt) override;
  bool setClipboardText(TextView text) override;

  // Handles messages as they come, until `isOver` says so after one of them or the thread is asked
  // to quit.
  void handleMessages(const std::function<bool()>& isOver) const;

  // Handles one message, with the keys that lead from control to control.
  void handleMessage(MSG& message) const;

  const std::vector<Win32Window*>& openWindows() const { return open_; }

 private:
  friend class Win32Window;

  void opened(Win32Window& window) { open_.push_back(&window); }
  void closed(Win32Window& window) { std::erase(open_, &window); }

  const Collation& collation_;
  std::vector<Win32Window*> open_;
  ULONG_PTR pictures_ = 0;  // what GDI+ calls its token
};

}  // namespace termvik
