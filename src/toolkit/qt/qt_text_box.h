// SPDX-License-Identifier: MIT
// A box of several lines that the user reads.
#pragma once

#include <QPlainTextEdit>

#include "qt_controls.h"

namespace termvik {

class QtTextBox : public QtControl<TextBox, QPlainTextEdit> {
 public:
  QtTextBox(QWidget* parent, const ControlDesign& design);

 protected:
  void showText() override;

 private:
  class Edit;
};

}  // namespace termvik
