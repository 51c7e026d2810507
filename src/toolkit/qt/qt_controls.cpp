// SPDX-License-Identifier: MIT
#include "qt_controls.h"

#include <cmath>

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace termvik {

namespace {

QLabel* makeLabel(QWidget* parent, const ControlDesign& design) {
  auto* label = new QLabel(toQt(design.caption), parent);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(qtAlignment(design.alignment) | Qt::AlignTop);
  label->setWordWrap(design.multiLine);
  return label;
}

// The logo, as large as its place allows; Qt takes the one of its pictures that is sharp there.
class Picture : public QFrame {
 public:
  using QFrame::QFrame;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QFrame::paintEvent(event);
    QPainter painter(this);
    logo_.paint(&painter, contentsRect(), Qt::AlignTop | Qt::AlignRight);
  }

 private:
  QIcon logo_{QStringLiteral(":/logo.png")};
};

QFrame* makePicture(QWidget* parent, const ControlDesign& design) {
  auto* picture = new Picture(parent);
  if (!design.flat) picture->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  return picture;
}

QGroupBox* makeFrame(QWidget* parent, const ControlDesign& design) {
  auto* frame = new QGroupBox(toQt(design.caption), parent);
  frame->setAutoFillBackground(true);  // in a narrow window it lies over the logo
  return frame;
}

QFrame* makeLine(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setMinimumHeight(1);
  return line;
}

// A sign on a dark window is this far from the window's colour towards that of its text: three
// times as bright, so that it stands out, while the mark in it still does from the sign.
constexpr double kSignFromWindow = 0.4;

QColor between(const QColor& from, const QColor& to, double share) {
  const auto mix = [share](int a, int b) {
    return static_cast<int>(std::lround(a + share * (b - a)));
  };
  return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

}  // namespace

// Each arrow chooses the option that it leads to, also where none is on yet.
class QtOptionButton::Button : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    QRadioButton::keyPressEvent(event);
    auto* next = qobject_cast<QRadioButton*>(QApplication::focusWidget());
    if (next != nullptr && next != this) next->setChecked(true);
  }

  // Shows the focus also where the mouse has brought it, as far as the style shows it at all.
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    if (hasFocus()) option.state |= QStyle::State_KeyboardFocusChange;
    painter.drawControl(QStyle::CE_RadioButton, option);
  }
};

QtOptionButton::QtOptionButton(QWidget* parent, const ControlDesign& design, OptionGroup& group,
                               QButtonGroup& exclusive)
    : QtControl(new Button(toQt(design.caption), parent), design, group), exclusive_(exclusive) {
  exclusive_.addButton(widget());
  QtOptionButton::showValue();
  QObject::connect(widget(), &QRadioButton::toggled, widget(), [this](bool on) {
    if (on) userChooses();
  });
}

void QtOptionButton::showValue() {
  const QSignalBlocker quiet(widget());
  exclusive_.setExclusive(false);  // else the last button that is on cannot be switched off
  widget()->setChecked(Value());
  exclusive_.setExclusive(true);
  chooseTabStop();
}

// Of a group Tab visits the option that is on, or the first.
void QtOptionButton::chooseTabStop() const {
  const QAbstractButton* on = exclusive_.checkedButton();
  for (QAbstractButton* button : exclusive_.buttons()) {
    if (on == nullptr) on = button;
    button->setFocusPolicy(button == on ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

QtCheckBox::QtCheckBox(QWidget* parent, const ControlDesign& design)
    : QtControl(new QCheckBox(toQt(design.caption), parent), design) {
  widget()->setChecked(Value() == 1);
  QObject::connect(widget(), &QCheckBox::toggled, widget(), [this](bool on) { userSets(on); });
}

QtCommandButton::QtCommandButton(QWidget* parent, const ControlDesign& design)
    : QtControl(new QPushButton(toQt(design.caption), parent), design) {
  widget()->setEnabled(Enabled());
  widget()->setDefault(design.isDefault);
  QObject::connect(widget(), &QPushButton::clicked, widget(), [this] { userPresses(); });
}

std::unique_ptr<Control> makeQtDecoration(QWidget* parent, const ControlDesign& design) {
  switch (design.kind) {
    case ControlKind::Frame:
      return std::make_unique<QtControl<Control, QWidget>>(makeFrame(parent, design), design);
    case ControlKind::PictureBox:
      return std::make_unique<QtControl<Control, QWidget>>(makePicture(parent, design), design);
    case ControlKind::Line:
      return std::make_unique<QtControl<Control, QWidget>>(makeLine(parent), design);
    default:
      return std::make_unique<QtControl<Control, QWidget>>(makeLabel(parent, design), design);
  }
}

void applyColours(QWidget& widget, const ControlDesign& design) {
  QPalette palette = widget.palette();
  const QColor window = palette.color(QPalette::Window);
  const bool darkWindow = window.lightness() < 128;
  // Black where black can be read; on a dark desktop the desktop's own text colour.
  if (design.textColour == Colour::Black && !darkWindow) {
    palette.setColor(QPalette::WindowText, Qt::black);
  }
  // Styles fill the sign of an option with the colour of a list, and draw a darker line around it:
  // on a dark window neither can be seen while the option is off.
  const bool hasSign =
      design.kind == ControlKind::OptionButton || design.kind == ControlKind::CheckBox;
  if (hasSign && darkWindow) {
    const QColor text = palette.color(QPalette::WindowText);
    palette.setColor(QPalette::Base, between(window, text, kSignFromWindow));
  }
  if (design.backColour == Colour::ToolTipBackground) {
    palette.setColor(QPalette::Base, palette.color(QPalette::ToolTipBase));
    palette.setColor(QPalette::Text, palette.color(QPalette::ToolTipText));
  }
  if (design.backColour == Colour::ButtonFace) {
    // The surface of a window, which styles of today give a colour that is not that of its buttons.
    palette.setColor(QPalette::Base, window);
    palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
  }
  widget.setPalette(palette);
}

}  // namespace termvik
