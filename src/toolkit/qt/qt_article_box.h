// A text box of several lines that the user reads.
#pragma once

#include <QPlainTextEdit>

#include "toolkit/qt/qt_controls.h"

namespace termvik {

class QtArticleBox : public QtControl<TextBox, QPlainTextEdit> {
 public:
  QtArticleBox(QWidget* parent, const ControlDesign& design);

  Text text() const override { return text_; }
  void setText(TextView text) override;
  std::int32_t SelStart() const override { return 0; }
  std::int32_t SelLength() const override { return 0; }
  void setSelStart(std::int32_t) override {}
  void setSelLength(std::int32_t) override {}

 private:
  class Edit;

  Text text_;
};

}  // namespace termvik
