// SPDX-License-Identifier: MIT
// How the real main window goes along with the habits and the desktop of a person.
#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QWindow>

#include "dialogs/frm_about_design.h"
#include "qt_main_window.h"

namespace termvik {
namespace {

class QtManners : public QtMainWindow {
 protected:
  static void press(Qt::Key key, int times = 1) {
    for (int i = 0; i < times; ++i) {
      QTest::keyClick(QApplication::focusWidget(), key);
      QCoreApplication::processEvents();
    }
  }

  QWidget* option(TextView name, std::int32_t index) const {
    for (const auto& control : window->controls()) {
      if (control->design().name == name && control->design().index == index) {
        return qtWidget(*control);
      }
    }
    return nullptr;
  }

  QLineEdit& search = *qobject_cast<QLineEdit*>(qtWidget(window->editBox(u"txtSearch")));
};

double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
  const auto [dark, bright] = std::minmax({luminance(one), luminance(other)});
  return (bright + 0.05) / (dark + 0.05);
}

TEST_F(QtManners, TheKeyboardComesBackFromTheMenuBar) {
  QMenuBar& bar = *widget().menuBar();
  search.setFocus();
  QTest::keyClicks(&search, "sk");
  press(Qt::Key_Alt);
  EXPECT_TRUE(search.hasFocus()) << "a tap on Alt does nothing";
  for (const Qt::Key back : {Qt::Key_F10, Qt::Key_Escape}) {
    press(Qt::Key_F10);
    EXPECT_EQ(bar.activeAction(), bar.actions().front());
    press(back);
    EXPECT_EQ(bar.activeAction(), nullptr);
    EXPECT_TRUE(search.hasFocus());
  }
  QTest::keyClicks(QApplication::focusWidget(), "r");
  EXPECT_EQ(search.text().toStdString(), "skr");
}

TEST_F(QtManners, UndoGoesBackAThousandEditsAtMost) {
  search.setFocus();
  QTest::keyClicks(&search, QString(1001, 'a'));
  search.setSelection(10, -5);
  QTest::keyClicks(&search, "b");
  EXPECT_EQ(search.text(), QString(5, 'a') + "b" + QString(991, 'a'));
  while (search.isUndoAvailable()) search.undo();
  EXPECT_EQ(search.text().size(), 1001);
}

TEST_F(QtManners, ItemsThatDoNotFitAreSeenWhenTheArrowsReachThem) {
  hands->place(*window, {150, 150, 6000, 4500});
  press(Qt::Key_F10);
  press(Qt::Key_Right, 6);
  const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  ASSERT_NE(menu->activeAction(), nullptr);
  EXPECT_EQ(menu->activeAction()->text().toStdString(), "Visa ordlisteversioner");
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_EQ(widget().menuBar()->activeAction(), nullptr);
}

TEST_F(QtManners, TabVisitsTheOptionThatIsOnAndArrowsChoose) {
  OptionGroup& glossary = window->optionGroup(u"optGlossary");
  const auto tabFromTheArticle = [this] {
    qtWidget(window->textBox(u"txtArticle"))->setFocus();
    press(Qt::Key_Tab);
    return QApplication::focusWidget();
  };
  EXPECT_EQ(tabFromTheArticle(), option(u"optGlossary", 0)) << "none is on";
  press(Qt::Key_Down);
  EXPECT_TRUE(glossary.Value(1));
  glossary.setValue(2, true);
  EXPECT_EQ(tabFromTheArticle(), option(u"optGlossary", 2));
  press(Qt::Key_Up);
  EXPECT_TRUE(glossary.Value(1));
  press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), option(u"optSearch", 0));
}

TEST_F(QtManners, ListAndOptionsShowThatTheyHaveTheFocus) {
  for (QWidget* shown : {qtWidget(window->listBox(u"lstWords")), option(u"optGlossary", 1)}) {
    search.setFocus();
    const QImage without = shown->grab().toImage();
    shown->setFocus(Qt::MouseFocusReason);
    EXPECT_NE(shown->grab().toImage(), without);
  }
}

TEST_F(QtManners, TheFrameHidesTheLogoBehindIt) {
  hands->place(*window, {150, 150, 6000, 4500});
  QWidget* frame = qtWidget(window->control(u"Frame1"));
  const auto seen = [&] { return widget().centralWidget()->grab(frame->geometry()).toImage(); };
  const QImage withLogo = seen();
  qtWidget(window->control(u"picLogo"))->hide();
  EXPECT_EQ(seen(), withLogo);
}

TEST_F(QtManners, ARowWiderThanTheListCanBeReadAsATip) {
  ListBox& list = window->listBox(u"lstWords");
  const Text wide = Text(200, u'w') + u" & <b>";
  for (const Text& row : {wide, Text(u"kil")}) list.AddItem(row, 1);
  list.setListIndex(0);
  auto& view = *qobject_cast<QListView*>(qtWidget(list));
  const auto tipOf = [&view](int row) {
    const QPoint at = view.visualRect(view.model()->index(row, 0)).center();
    QHelpEvent event(QEvent::ToolTip, at, view.viewport()->mapToGlobal(at));
    QApplication::sendEvent(view.viewport(), &event);
    return fromQt(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText());
  };
  EXPECT_EQ(tipOf(0), u"") << "kil";
  EXPECT_EQ(tipOf(1), wide);
}

TEST_F(QtManners, CtrlBackspaceDeletesAWord) {
  search.setFocus();
  QTest::keyClicks(&search, "fil sax");
  QTest::keyClick(&search, Qt::Key_Backspace, Qt::ControlModifier);
  EXPECT_EQ(search.text().toStdString(), "fil ");
}

TEST_F(QtManners, AMessageHasTheProgramsFontAndCanBeCopied) {
  hands->seesMessage = [this](TextView, TextView) {
    auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.font().family(), option(u"optGlossary", 0)->font().family());
    QTest::keyClick(box.windowHandle(), Qt::Key_C, Qt::ControlModifier);
  };
  hands->toolkit().MsgBox(u"Två rader:\r\nord");
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "Två rader:\r\nord");
}

TEST_F(QtManners, AMessageLeavesItsButtonOnTheScreen) {
  Text lines;
  for (int i = 0; i < 10'000; ++i) lines += i % 7 == 6 ? u"\n" : u"glossary ";
  for (const Text& prompt : {lines, Text(70'000, u'x'), Text(u"kort")}) {
    hands->seesMessage = [&prompt](TextView shown, TextView) {
      QWidget& box = *QApplication::activeModalWidget();
      EXPECT_TRUE(QRect({0, 0}, box.screen()->size()).contains(QRect({0, 0}, box.size())));
      EXPECT_EQ(shown.ends_with(u"…"), shown != prompt);
      EXPECT_EQ(prompt.size() > 100, shown != prompt);
    };
    hands->toolkit().MsgBox(prompt);
  }
}

TEST(QtDark, OptionsThatAreOffCanBeSeenAndTheAboutBoxHasNoPatches) {
  const Collation collation{"sv_SE"};
  const std::unique_ptr<Hands> hands = makeQtHands(collation);
  QPalette dark(QColor(49, 54, 59), QColor(42, 46, 50));
  dark.setColor(QPalette::Base, QColor(27, 30, 32));
  QApplication::setPalette(dark);
  const std::unique_ptr<Window> window = hands->toolkit().createWindow(frmGlossaryDesign());
  window->Show();
  for (const auto& control : window->controls()) {
    if (control->design().kind != ControlKind::OptionButton || control->design().on) continue;
    const QImage seen = qtWidget(*control)->grab().toImage();
    const QColor sign = seen.pixelColor(8, seen.height() / 2);
    EXPECT_GT(contrast(sign, dark.color(QPalette::Window)), 3.0);
  }
  const std::unique_ptr<Window> about = hands->toolkit().createWindow(frmAboutDesign());
  about->Show();
  for (const Window* shown : {window.get(), about.get()}) {
    for (const auto& control : shown->controls()) {
      const QPalette seen = qtWidget(*control)->palette();
      EXPECT_GT(contrast(seen.color(QPalette::WindowText), seen.color(QPalette::Window)), 3.0)
          << toUtf8(control->design().name);
    }
  }
  const QImage authors = qtWidget(about->control(u"Text2"))->grab().toImage();
  EXPECT_EQ(authors.pixelColor(1, 1).name(), dark.color(QPalette::Window).name());
  QApplication::setPalette(QPalette());
}

}  // namespace
}  // namespace termvik
