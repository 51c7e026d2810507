// SPDX-License-Identifier: MIT
// What a person finds in the real main window beyond what the program asks of a toolkit.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "dialogs/frm_about_design.h"
#include "qt_controls.h"
#include "qt_main_window.h"

namespace termvik {
namespace {

TEST_F(QtMainWindow, TabGoesThroughTheControlsInTheirOrder) {
  window->optionGroup(u"optGlossary").setValue(2, true);  // of a group Tab visits what is on
  window->commandButton(u"cmdSearchAgain").setEnabled(true);
  qtWidget(window->editBox(u"txtSearch"))->setFocus();
  QStringList visited;
  for (int i = 0; i < 7; ++i) {
    visited << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(visited.join(QChar(u' ')).toStdString(),
            "txtSearch lstWords txtArticle optGlossary optSearch cmdSearchAgain chkShowDoublet");
}

TEST_F(QtMainWindow, EveryControlHasANameToBeSaidAndRoomForItsCaption) {
  for (const auto& control : window->controls()) {
    QWidget* shown = qtWidget(*control);
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(shown);
    ASSERT_NE(face, nullptr);
    EXPECT_FALSE(face->text(QAccessible::Name).isEmpty()) << toUtf8(control->design().name);
    const bool isButton = qobject_cast<QAbstractButton*>(shown) != nullptr;
    if (!isButton || qobject_cast<QPushButton*>(shown) != nullptr) continue;
    EXPECT_LE(shown->sizeHint().width(), shown->width()) << toUtf8(control->design().caption);
  }
}

TEST(QtFonts, CaptionsFitTheirPlacesInAWideFontToo) {
  const Collation collation{"sv_SE"};
  const std::unique_ptr<Hands> hands = makeQtHands(collation);
  const QFont before = QApplication::font();
  for (const char* family : {"DejaVu Sans", "DejaVu Sans Mono"}) {
    QApplication::setFont(QFont(QString::fromLatin1(family), 15));
    for (const WindowDesign& design : {frmGlossaryDesign(), frmAboutDesign()}) {
      const std::unique_ptr<Window> window = hands->toolkit().createWindow(design);
      for (const auto& control : window->controls()) {
        const QWidget& shown = *qtWidget(*control);
        const QString caption = toQt(control->design().caption).trimmed();
        if (caption.isEmpty()) continue;
        const bool wraps =
            control->design().multiLine || control->design().kind == ControlKind::TextBox;
        const int flags = wraps ? Qt::TextWordWrap : Qt::TextSingleLine;
        const QRect needs = shown.fontMetrics().boundingRect(shown.rect(), flags, caption);
        EXPECT_LE(needs.width(), shown.width()) << toUtf8(control->design().caption);
        EXPECT_LE(needs.height(), shown.height()) << toUtf8(control->design().caption);
      }
    }
  }
  QApplication::setFont(before);
}

TEST_F(QtMainWindow, LogoAndAddressEndAtTheRight) {
  for (const TextView name : {u"picLogo", u"lblInternet"}) {
    const QImage seen = qtWidget(window->control(name))->grab().toImage();
    const QColor background = seen.pixelColor(0, seen.height() - 1);
    const auto isBare = [&](int x) {
      for (int y = 0; y < seen.height(); ++y) {
        if (seen.pixelColor(x, y) != background) return false;
      }
      return true;
    };
    EXPECT_TRUE(isBare(3)) << toUtf8(name);
    EXPECT_FALSE(isBare(seen.width() - 2) && isBare(seen.width() - 5)) << toUtf8(name);
  }
}

TEST_F(QtMainWindow, TheMenuBarShowsAllNineItemsAndTheListItsRows) {
  const QMenuBar& bar = *widget().menuBar();
  EXPECT_FALSE(bar.isNativeMenuBar());
  ASSERT_EQ(bar.actions().size(), 9);
  for (QAction* action : bar.actions()) {
    EXPECT_TRUE(bar.rect().contains(bar.actionGeometry(action))) << qPrintable(action->text());
  }
  ListBox& list = window->listBox(u"lstWords");
  for (const TextView word : {u"sax", u"kil"}) list.AddItem(word, 1);
  list.setListIndex(1);
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(qtWidget(list));
  ASSERT_EQ(face->childCount(), 2);
  EXPECT_EQ(face->child(1)->text(QAccessible::Name).toStdString(), "sax");
  EXPECT_TRUE(face->child(1)->state().selected);
}

TEST_F(QtMainWindow, TheArticleCanBeSelectedWholeAndNotChanged) {
  TextBox& article = window->textBox(u"txtArticle");
  article.setText(u"S: kil\r\nE: wedge");
  auto& edit = *qobject_cast<QPlainTextEdit*>(qtWidget(article));
  QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&edit, "x");
  EXPECT_EQ(edit.textCursor().selectedText().toStdU16String(), u"S: kil\u2029E: wedge");
}

TEST_F(QtMainWindow, ALongArticleScrollsAndIsCopiedAsItIs) {
  TextBox& article = window->textBox(u"txtArticle");
  auto& edit = *qobject_cast<QPlainTextEdit*>(qtWidget(article));
  EXPECT_FALSE(edit.verticalScrollBar()->isVisible());
  const Text longLine(50'000, u'x');
  article.setText(longLine + u"\r\n" + longLine);
  hands->settle();
  EXPECT_TRUE(edit.verticalScrollBar()->isVisible());
  edit.selectAll();
  edit.copy();
  EXPECT_EQ(fromQt(QApplication::clipboard()->text()), longLine + u"\n" + longLine);
}

}  // namespace
}  // namespace termvik
