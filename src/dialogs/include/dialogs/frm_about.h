// SPDX-License-Identifier: MIT
// The About box: who made the program and which version it is.
#pragma once

#include <memory>

#include "common/system/app.h"
#include "common/toolkit/toolkit.h"

namespace termvik {

class frmAbout {
 public:
  frmAbout(Toolkit& toolkit, const App& app);

  // Opens the box in the middle of the screen; returns when it is closed.
  void ShowModal();

 private:
  void Form_Load();
  void close() { window_->Unload(); }  // the OK button, a click on the bare box, another window

  const App& app_;
  std::unique_ptr<Window> window_;
};

}  // namespace termvik
