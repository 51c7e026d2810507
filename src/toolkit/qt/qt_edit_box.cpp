// SPDX-License-Identifier: MIT
#include "qt_edit_box.h"

#include <limits>
#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>

namespace termvik {

namespace {

std::int16_t keyCodeOf(int key) {
  switch (key) {
    case Qt::Key_Up:
      return keys::kUp;
    case Qt::Key_Down:
      return keys::kDown;
    case Qt::Key_PageUp:
      return keys::kPageUp;
    case Qt::Key_PageDown:
      return keys::kPageDown;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keys::kEnter;
    default:
      return keys::kOther;
  }
}

}  // namespace

class QtEditBox::Edit : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

  QtEditBox* box = nullptr;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (!box->userPressesKey(keyCodeOf(event->key()))) return event->accept();
    const Text characters = fromQt(event->text());
    for (const char16_t character : characters) {
      if (!box->userGivesCharacter(character)) return event->accept();
    }
    QLineEdit::keyPressEvent(event);
  }

  // Qt would forget the selected part when the focus goes to another control. It stays and, as in
  // the other toolkits, is not shown until the focus is back.
  void focusOutEvent(QFocusEvent* event) override {
    const int start = selectionStart();
    const int length = selectionLength();
    const bool backwards = cursorPosition() == start;
    QLineEdit::focusOutEvent(event);
    if (length == 0 || hasSelectedText()) return;
    setSelection(backwards ? start + length : start, backwards ? -length : length);
    QPalette hidden = shown_ = palette();
    hidden.setBrush(QPalette::Highlight, hidden.base());
    hidden.setBrush(QPalette::HighlightedText, hidden.text());
    setPalette(hidden);
    hides_ = true;
  }

  void focusInEvent(QFocusEvent* event) override {
    if (std::exchange(hides_, false)) setPalette(shown_);
    QLineEdit::focusInEvent(event);
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) box->userClicks();
  }

 private:
  QPalette shown_;
  bool hides_ = false;  // the selected part looks like the rest
};

QtEditBox::QtEditBox(QWidget* parent, const ControlDesign& design)
    : QtControl(new Edit(parent), design) {
  static_cast<Edit*>(widget())->box = this;
  widget()->setMaxLength(std::numeric_limits<int>::max());  // Qt's own limit is 32,767
  widget()->setTextMargins(0, 0, 0, 0);
  QObject::connect(widget(), &QLineEdit::textChanged, widget(), [this] { userEdits(); });
}

std::int32_t QtEditBox::SelStart() const {
  return widget()->hasSelectedText() ? widget()->selectionStart() : widget()->cursorPosition();
}

void QtEditBox::setSelStart(std::int32_t start) {
  widget()->deselect();
  widget()->setCursorPosition(start);
}

void QtEditBox::setSelLength(std::int32_t length) { widget()->setSelection(SelStart(), length); }

}  // namespace termvik
