// SPDX-License-Identifier: MIT
// A box of one line in which the user writes.
#pragma once

#include <QLineEdit>

#include "qt_controls.h"

namespace termvik {

class QtEditBox : public QtControl<EditBox, QLineEdit> {
 public:
  QtEditBox(QWidget* parent, const ControlDesign& design);

  Text text() const override { return fromQt(widget()->text()); }
  std::int32_t SelStart() const override;
  std::int32_t SelLength() const override { return widget()->selectionLength(); }
  void setSelStart(std::int32_t start) override;
  void setSelLength(std::int32_t length) override;

 private:
  class Edit;
};

}  // namespace termvik
