// SPDX-License-Identifier: MIT
#include "qt_text_box.h"

#include <algorithm>
#include <vector>

#include <QMimeData>
#include <QTextBlock>

#include "qt_frame_cover.h"
#include "toolkit/shared/shown_limits.h"

namespace termvik {

namespace {

// Marks, as the state of a text block, a piece that the next block goes on with.
constexpr int kGoesOn = 1;

}  // namespace

class QtTextBox::Edit : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

  void showText(const QString& text) {
    QString pieces;
    std::vector<int> goingOn;  // numbers of the blocks that the next one goes on with
    int block = 0;
    std::size_t inLine = 0;
    for (const QChar character : text) {
      if (inLine == kLongestLine && character != u'\r' && character != u'\n') {
        pieces += u'\n';
        goingOn.push_back(block++);
        inLine = 0;
      }
      pieces += character;
      ++inLine;
      if (character != u'\n') continue;
      ++block;
      inLine = 0;
    }
    setPlainText(pieces);
    for (const int number : goingOn) document()->findBlockByNumber(number).setUserState(kGoesOn);
  }

 protected:
  // Copies the selected text as it is, not as it is shown.
  QMimeData* createMimeDataFromSelection() const override {
    const QTextCursor selection = textCursor();
    QString copied;
    QTextBlock block = document()->findBlock(selection.selectionStart());
    for (; block.isValid() && block.position() < selection.selectionEnd(); block = block.next()) {
      const int from = std::max(0, selection.selectionStart() - block.position());
      const int to = std::min(block.length() - 1, selection.selectionEnd() - block.position());
      copied += QStringView(block.text()).mid(from, to - from);
      const bool endsInside = block.position() + block.length() > selection.selectionEnd();
      if (!endsInside && block.userState() != kGoesOn) copied += u'\n';
    }
    auto* mime = new QMimeData;
    mime->setText(copied);
    return mime;
  }
};

QtTextBox::QtTextBox(QWidget* parent, const ControlDesign& design)
    : QtControl(new Edit(parent), design) {
  QPlainTextEdit& edit = *widget();
  edit.setReadOnly(true);
  edit.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edit.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  edit.setVerticalScrollBarPolicy(design.scrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  if (design.flat) {
    edit.setFrameShape(QFrame::NoFrame);
  } else {
    new QtFrameCover(edit);  // the box owns it
  }
  QTextOption option = edit.document()->defaultTextOption();
  option.setAlignment(qtAlignment(design.alignment));
  edit.document()->setDefaultTextOption(option);
  QtTextBox::showText();
}

void QtTextBox::showText() { static_cast<Edit*>(widget())->showText(toQt(text())); }

}  // namespace termvik
