#include "qt_controls.h"

#include <QIcon>
#include <QPainter>
#include <QSignalBlocker>

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

QFrame* makeLine(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setMinimumHeight(1);
  return line;
}

}  // namespace

QtOptionButton::QtOptionButton(QWidget* parent, const ControlDesign& design, OptionGroup& group,
                               QButtonGroup& exclusive)
    : QtControl(new QRadioButton(toQt(design.caption), parent), design, group),
      exclusive_(exclusive) {
  exclusive_.addButton(widget());
  widget()->setChecked(Value());
  QObject::connect(widget(), &QRadioButton::toggled, widget(), [this](bool on) {
    if (on) userChooses();
  });
}

void QtOptionButton::showValue() {
  const QSignalBlocker quiet(widget());
  exclusive_.setExclusive(false);  // else the last button that is on cannot be switched off
  widget()->setChecked(Value());
  exclusive_.setExclusive(true);
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
      return std::make_unique<QtControl<Control, QWidget>>(
          new QGroupBox(toQt(design.caption), parent), design);
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
  const bool darkWindow = palette.color(QPalette::Window).lightness() < 128;
  // Black where black can be read; on a dark desktop the desktop's own text colour.
  if (design.textColour == Colour::Black && !darkWindow) {
    palette.setColor(QPalette::WindowText, Qt::black);
  }
  if (design.backColour == Colour::ToolTipBackground) {
    palette.setColor(QPalette::Base, palette.color(QPalette::ToolTipBase));
    palette.setColor(QPalette::Text, palette.color(QPalette::ToolTipText));
  }
  if (design.backColour == Colour::ButtonFace) {
    palette.setColor(QPalette::Base, palette.color(QPalette::Button));
    palette.setColor(QPalette::Text, palette.color(QPalette::ButtonText));
  }
  widget.setPalette(palette);
}

}  // namespace termvik
