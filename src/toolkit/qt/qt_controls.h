// SPDX-License-Identifier: MIT
// Controls that are one Qt widget each, without behaviour of their own.
#pragma once

#include <memory>

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "common/toolkit/toolkit.h"
#include "qt_text.h"

namespace termvik {

// What shows a control.
class QtWidget {
 public:
  virtual ~QtWidget() = default;
  virtual QWidget* handle() const = 0;
};

inline QWidget* qtWidget(const Control& control) {
  return dynamic_cast<const QtWidget&>(control).handle();
}

// A control shown by a widget, which belongs to its parent widget.
template <class Base, class Widget>
class QtControl : public Base, public QtWidget {
 public:
  template <class... Arguments>
  QtControl(Widget* widget, const ControlDesign& design, Arguments&&... arguments)
      : Base(design, std::forward<Arguments>(arguments)...), widget_(widget) {
    QtControl::showPlace();
  }

  Widget* widget() const { return widget_; }
  QWidget* handle() const override { return widget_; }

 protected:
  void showPlace() override { widget_->setGeometry(toQt(toPixels(this->place(), kDpi))); }

 private:
  Widget* widget_;
};

class QtOptionButton : public QtControl<OptionButton, QRadioButton> {
 public:
  // The buttons of one group share `exclusive`, which makes them one for the keyboard.
  QtOptionButton(QWidget* parent, const ControlDesign& design, OptionGroup& group,
                 QButtonGroup& exclusive);

 protected:
  void showValue() override;

 private:
  class Button;

  void chooseTabStop() const;

  QButtonGroup& exclusive_;
};

class QtCheckBox : public QtControl<CheckBox, QCheckBox> {
 public:
  QtCheckBox(QWidget* parent, const ControlDesign& design);
};

class QtCommandButton : public QtControl<CommandButton, QPushButton> {
 public:
  QtCommandButton(QWidget* parent, const ControlDesign& design);

 protected:
  void showEnabled() override { widget()->setEnabled(Enabled()); }
};

// Labels, pictures, frames and lines.
std::unique_ptr<Control> makeQtDecoration(QWidget* parent, const ControlDesign& design);

// Gives a widget the colours that its design names.
void applyColours(QWidget& widget, const ControlDesign& design);

}  // namespace termvik
