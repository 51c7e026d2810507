// A text box of one line.
#pragma once

#include <QLineEdit>

#include "toolkit/qt/qt_controls.h"

namespace termvik {

class QtSearchBox : public QtControl<TextBox, QLineEdit> {
 public:
  QtSearchBox(QWidget* parent, const ControlDesign& design);

  Text text() const override { return fromQt(widget()->text()); }
  void setText(TextView text) override;
  std::int32_t SelStart() const override;
  std::int32_t SelLength() const override { return widget()->selectionLength(); }
  void setSelStart(std::int32_t start) override;
  void setSelLength(std::int32_t length) override;

 private:
  class Edit;
};

}  // namespace termvik
