#include "toolkit/qt/qt_article_box.h"

namespace termvik {

QtArticleBox::QtArticleBox(QWidget* parent, const ControlDesign& design)
    : QtControl(new QPlainTextEdit(parent), design) {
  QPlainTextEdit& edit = *widget();
  edit.setReadOnly(true);
  edit.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edit.setTabChangesFocus(true);
  edit.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  edit.setVerticalScrollBarPolicy(design.scrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  if (design.flat) edit.setFrameShape(QFrame::NoFrame);
  QTextOption option = edit.document()->defaultTextOption();
  option.setAlignment(qtAlignment(design.alignment));
  edit.document()->setDefaultTextOption(option);
  QtArticleBox::setText(design.caption);
}

void QtArticleBox::setText(TextView text) {
  text_ = text;
  widget()->setPlainText(toQt(text));
}

}  // namespace termvik
