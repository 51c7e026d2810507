// SPDX-License-Identifier: MIT
#include "toolkit/qt/qt_hands.h"

#include <array>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "qt_edit_box.h"
#include "qt_list_box.h"
#include "qt_text_box.h"
#include "qt_window.h"
#include "toolkit/qt/qt_toolkit.h"

namespace termvik {

namespace {

Qt::Key qtKey(std::int16_t keyCode) {
  switch (keyCode) {
    case keys::kUp:
      return Qt::Key_Up;
    case keys::kDown:
      return Qt::Key_Down;
    case keys::kPageUp:
      return Qt::Key_PageUp;
    case keys::kPageDown:
      return Qt::Key_PageDown;
    default:
      return Qt::Key_Return;
  }
}

// Which platform Qt is to use: the one that the environment asks for, otherwise offscreen, with a
// screen of the usual size instead of its own of 800 by 600.
QByteArray choosePlatform(QTemporaryFile& screens) {
  QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  if (platform.isEmpty()) platform = "offscreen";
  if (platform != "offscreen" || !screens.open()) return platform;
  screens.write(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1920,)"
                R"( "height": 1080, "logicalDpi": 96, "dpr": 1}]})");
  screens.flush();
  return platform + ":configfile=" + screens.fileName().toUtf8();
}

class Application {
 public:
  Application() : platform_(choosePlatform(screens_)) {
    // What Qt remarks about its platform is not for the reader of a test's output.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    application_ = std::make_unique<QApplication>(count_, arguments_.data());
    QtToolkit::setUpApplication();
  }

 private:
  QTemporaryFile screens_;
  QByteArray platform_;
  QByteArray name_ = "termvik";
  QByteArray option_ = "-platform";
  int count_ = 3;
  std::array<char*, 4> arguments_{name_.data(), option_.data(), platform_.data(), nullptr};
  std::unique_ptr<QApplication> application_;
};

class QtHands : public QObject, public Hands {
 public:
  explicit QtHands(const Collation& collation)
      : application_(qApp == nullptr ? std::make_unique<Application>() : nullptr),
        toolkit_(collation) {
    qApp->installEventFilter(this);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
      if (seesClipboard) seesClipboard(fromQt(QGuiApplication::clipboard()->text()));
    });
  }

  Toolkit& toolkit() override { return toolkit_; }

  void replaceText(EditBox& box, TextView text) override {
    if (box.text() == text) return;
    QLineEdit& edit = editOf(box);
    edit.selectAll();
    edit.insert(toQt(text));
    settle();
  }

  void type(EditBox& box, char16_t character) override {
    QLineEdit& edit = editOf(box);
    const QString before = edit.text();
    const QString typed = toQt(TextView(&character, 1));
    QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, typed, Qt::NoModifier);
    // What no key of a keyboard gives, such as half of a surrogate pair, comes from an input
    // method.
    if (edit.text() == before && !QChar(character).isPrint()) {
      QInputMethodEvent event;
      event.setCommitString(typed);
      QApplication::sendEvent(&edit, &event);
    }
    settle();
  }

  void goToEnd(EditBox& box) override { editOf(box).end(false); }

  void press(Control& control, std::int16_t keyCode) override {
    QTest::keyClick(qtWidget(control), qtKey(keyCode));
    settle();
  }

  void click(Control& control) override {
    QWidget* widget = qtWidget(control);
    // An option or a check box takes clicks on its sign and caption, not on the bare rest.
    const bool hasSign = qobject_cast<QRadioButton*>(widget) || qobject_cast<QCheckBox*>(widget);
    const QPoint middle = widget->rect().center();
    QTest::mouseClick(widget, Qt::LeftButton, {}, hasSign ? QPoint(8, middle.y()) : middle);
    settle();
  }

  void clickCorner(Window& window) override {
    QTest::mouseClick(dynamic_cast<QtWindow&>(window).widget().centralWidget(), Qt::LeftButton, {},
                      QPoint(2, 2));
    settle();
  }

  void clickRow(ListBox& list, std::int32_t row) override {
    settle();
    QListView& view = *dynamic_cast<QtListBox&>(list).widget();
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    const QPoint middle = view.visualRect(index).center();
    if (view.viewport()->rect().contains(middle)) {
      QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle);
    } else {
      view.setCurrentIndex(index);  // the list is too small to show it
    }
    settle();
  }

  void choose(Window& window, MenuItem& item) override {
    auto& qtWindow = dynamic_cast<QtWindow&>(window);
    QMenuBar* bar = qtWindow.widget().menuBar();
    QAction* action = qtWindow.action(item);
    const QRect place = bar->actionGeometry(action);
    // Over the last items that a narrow bar has room for lies the button to the others.
    const bool seen =
        bar->rect().contains(place) && bar->childAt(place.right(), place.center().y()) == nullptr;
    if (seen) {
      QTest::mouseClick(bar, Qt::LeftButton, {}, place.center());
    } else {
      action->trigger();  // the window is too narrow for it
    }
    settle();
  }

  void place(Window& window, const Place& place) override {
    window.setOuterPlace(place);
    settle();
  }

  void maximise(Window& window) override { setState(window, Qt::WindowMaximized, true); }
  void minimise(Window& window) override { setState(window, Qt::WindowMinimized, true); }

  void restore(Window& window) override {
    const bool iconified = window.State() == WindowState::Minimised;
    setState(window, iconified ? Qt::WindowMinimized : Qt::WindowMaximized, false);
  }

  void close(Window& window) override {
    dynamic_cast<QtWindow&>(window).widget().close();
    settle();
  }

  void settle() override { QCoreApplication::processEvents(); }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Show && object->isWidgetType()) {
      auto* widget = static_cast<QWidget*>(object);
      if (widget->isWindow() && widget->isModal()) {
        QTimer::singleShot(0, this, [this, widget] { answer(*widget); });
      }
    }
    return false;
  }

 private:
  static QLineEdit& editOf(EditBox& box) { return *dynamic_cast<QtEditBox&>(box).widget(); }

  void setState(Window& window, Qt::WindowState state, bool on) {
    QMainWindow& widget = dynamic_cast<QtWindow&>(window).widget();
    widget.setWindowState(widget.windowState().setFlag(state, on));
    settle();
  }

  // Reads a modal box and presses its OK button.
  void answer(QWidget& modal) {
    if (auto* message = qobject_cast<QMessageBox*>(&modal)) {
      if (seesMessage) seesMessage(fromQt(message->text()), fromQt(message->windowTitle()));
      QTest::mouseClick(message->button(QMessageBox::Ok), Qt::LeftButton);
      return;
    }
    Window& box = *toolkit_.Forms().back();
    if (seesModalBox) seesModalBox(box);
    QTest::mouseClick(qtWidget(box.commandButton(u"cmdOK")), Qt::LeftButton);
  }

  std::unique_ptr<Application> application_;
  QtToolkit toolkit_;
};

}  // namespace

std::unique_ptr<Hands> makeQtHands(const Collation& collation) {
  return std::make_unique<QtHands>(collation);
}

}  // namespace termvik
