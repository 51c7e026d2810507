// SPDX-License-Identifier: MIT
#include "qt_edit_box.h"

#include <limits>
#include <utility>

#include <QKeyEvent>
#include <QMouseEvent>

namespace termvik {

namespace {

constexpr int kMostUndone = 1000;  // then none is; it begins anew

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
  int edits = 0;  // that can be undone

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (edits > kMostUndone) forgetEdits();
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
    const auto [start, length] = selected();
    QLineEdit::focusOutEvent(event);
    if (length == 0 || hasSelectedText()) return;
    setSelection(start, length);
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
  // As setSelection takes it; backwards when the cursor is at its beginning.
  std::pair<int, int> selected() const {
    const int length = selectionLength();
    const bool backwards = cursorPosition() == selectionStart();
    return backwards ? std::pair(selectionEnd(), -length) : std::pair(selectionStart(), length);
  }

  // Qt keeps for Undo each character that came or went, as long as the box lives. It forgets them
  // when it is given a text.
  void forgetEdits() {
    const int cursor = cursorPosition();
    const auto [start, length] = selected();
    setText(text());
    setCursorPosition(cursor);
    if (length != 0) setSelection(start, length);
    edits = 0;
  }

  QPalette shown_;
  bool hides_ = false;  // the selected part looks like the rest
};

QtEditBox::QtEditBox(QWidget* parent, const ControlDesign& design)
    : QtControl(new Edit(parent), design) {
  static_cast<Edit*>(widget())->box = this;
  widget()->setMaxLength(std::numeric_limits<int>::max());  // Qt's own limit is 32,767
  widget()->setTextMargins(0, 0, 0, 0);
  QObject::connect(widget(), &QLineEdit::textChanged, widget(), [this] {
    ++static_cast<Edit*>(widget())->edits;
    userEdits();
  });
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
