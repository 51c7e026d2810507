// SPDX-License-Identifier: MIT
// What keys and the mouse do in the search box, in the list and around them.
#include <utility>

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "dialogs/frm_about_design.h"
#include "qt_main_window.h"

namespace termvik {
namespace {

class QtBoxes : public QtMainWindow {
 protected:
  QtBoxes() {
    search.KeyDown = [this](std::int16_t& code) { lastKey = code; };
    search.Click = [this] { ++clicks; };
    window->Click = [this] { ++clicks; };
  }

  void fill(int rows) {
    for (int row = 0; row < rows; ++row) list.AddItem(fromUtf8(std::to_string(1000 + row)), row);
    hands->settle();
  }

  QRect placeOf(std::int32_t row) const { return view.visualRect(view.model()->index(row, 0)); }

  static bool shows(QWidget& widget, const QColor& colour) {
    const QImage seen = widget.grab().toImage();
    for (int x = 0; x < seen.width(); ++x) {
      if (seen.pixelColor(x, seen.height() / 2) == colour) return true;
    }
    return false;
  }

  EditBox& search = window->editBox(u"txtSearch");
  ListBox& list = window->listBox(u"lstWords");
  QLineEdit& edit = *qobject_cast<QLineEdit*>(qtWidget(search));
  QListView& view = *qobject_cast<QListView*>(qtWidget(list));
  std::int16_t lastKey = 0;
  int clicks = 0;
};

// Sees when a widget is painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) : QObject(&widget) { widget.installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    painted = painted || event->type() == QEvent::Paint;
    return false;
  }

  bool painted = false;
};

TEST_F(QtBoxes, ARowStaysSelectedWhateverIsHeldDuringAClick) {
  fill(3);
  list.setListIndex(1);
  for (const auto held : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, held, placeOf(1).center());
    EXPECT_TRUE(view.selectionModel()->isRowSelected(1));
  }
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {5, placeOf(2).bottom() + 20});
  EXPECT_TRUE(view.selectionModel()->isRowSelected(1)) << "nor does a click below the rows count";
}

TEST_F(QtBoxes, TheSelectedRowComesBackIntoViewWhenItIsSelectedAgain) {
  fill(300);
  list.setListIndex(10);
  view.scrollToBottom();
  ASSERT_FALSE(view.viewport()->rect().contains(placeOf(10)));
  list.setListIndex(10);
  EXPECT_TRUE(view.viewport()->rect().contains(placeOf(10)));
}

TEST_F(QtBoxes, TheMarkOfARowIsSeenAtOnce) {
  PaintWatch watch(*view.viewport());
  fill(3);
  ASSERT_TRUE(QTest::qWaitFor([&] { return watch.painted; }));
  watch.painted = false;
  list.setList(1, u"marked");
  EXPECT_TRUE(QTest::qWaitFor([&] { return watch.painted; }, 1000));
}

TEST_F(QtBoxes, TheSelectedTextIsShownWhileTheBoxHasTheFocus) {
  const QColor highlight = edit.palette().color(QPalette::Highlight);
  edit.setFocus();
  QTest::keyClicks(&edit, "skruv");
  edit.setSelection(5, -5);
  EXPECT_TRUE(shows(edit, highlight));
  view.setFocus();
  EXPECT_FALSE(shows(edit, highlight));
  edit.setFocus(Qt::MouseFocusReason);
  EXPECT_TRUE(shows(edit, highlight));
  EXPECT_EQ(edit.cursorPosition(), 0) << "the end that was moved";
}

TEST_F(QtBoxes, TheEnterOfTheNumberPadIsEnter) {
  QTest::keyClick(&edit, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(lastKey, keys::kEnter);
}

TEST_F(QtBoxes, OnlyTheLeftButtonPressedAndReleasedAtOnePlaceClicks) {
  const QPoint inside = edit.rect().center();
  QTest::mousePress(&edit, Qt::LeftButton, {}, inside);
  QTest::mouseRelease(&edit, Qt::LeftButton, {}, {inside.x(), edit.height() + 9});
  QTest::mouseClick(&edit, Qt::RightButton, {}, inside);
  const QWidget& logo = *qtWidget(window->control(u"picLogo"));
  const QPoint bare = widget().centralWidget()->mapTo(&widget(), QPoint(2, 2));
  QTest::mousePress(&widget(), Qt::LeftButton, {}, logo.mapTo(&widget(), QPoint(20, 20)));
  QTest::mouseRelease(&widget(), Qt::LeftButton, {}, bare);
  EXPECT_EQ(clicks, 0);
  QTest::mouseClick(&widget(), Qt::LeftButton, {}, bare);
  QTest::mouseClick(&edit, Qt::LeftButton, {}, inside);
  EXPECT_EQ(clicks, 2);
}

TEST_F(QtBoxes, EachKeyOfItsButtonClosesTheAboutBox) {
  const std::unique_ptr<Window> about = hands->toolkit().createWindow(frmAboutDesign());
  about->commandButton(u"cmdOK").Click = [this] { ++clicks; };
  about->Show();
  QMainWindow& box = dynamic_cast<QtWindow&>(*about).widget();
  box.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  for (const TextView focused : {u"cmdOK", u"Text2"}) {
    QWidget& widget = *qtWidget(about->control(focused));
    widget.setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
      QTest::keyClick(&widget, key);
      EXPECT_EQ(std::exchange(clicks, 0), 1) << toUtf8(focused) << ", " << key;
    }
  }
}

TEST_F(QtBoxes, AWindowHearsThatAnotherIsInFront) {
  const std::unique_ptr<Window> about = hands->toolkit().createWindow(frmAboutDesign());
  int left = 0;
  about->Deactivate = [&left] { ++left; };
  about->Show();
  QMainWindow& box = dynamic_cast<QtWindow&>(*about).widget();
  box.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  EXPECT_EQ(left, 0);
  widget().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&widget()));
  EXPECT_EQ(left, 1);
}

}  // namespace
}  // namespace termvik
