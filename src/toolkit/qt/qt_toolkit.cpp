#include "toolkit/qt/qt_toolkit.h"

#include <QApplication>
#include <QClipboard>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>

#include "common/system/app.h"
#include "qt_text.h"
#include "qt_window.h"

// Outside the namespace, as the macro asks; a static library's pictures are not there by
// themselves.
static void initPictures() { Q_INIT_RESOURCE(pictures); }

namespace termvik {

void QtToolkit::setUpApplication() {
  initPictures();
  QApplication::setApplicationName(toQt(kProgramName));
  QGuiApplication::setDesktopFileName(QStringLiteral("test.termvik.Termvik"));
}

void QtToolkit::showIcon() {
  if (!QApplication::windowIcon().isNull()) return;
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(QStringLiteral(":/icon-%1.png").arg(size));
  }
  QApplication::setWindowIcon(icon);
}

std::unique_ptr<Window> QtToolkit::createWindow(const WindowDesign& design) {
  return std::make_unique<QtWindow>(*this, collation_, design);
}

void QtToolkit::MsgBox(TextView prompt) {
  showIcon();
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(toQt(kProgramName));
  box.setTextFormat(Qt::PlainText);
  box.setText(toQt(prompt));
  box.addButton(QMessageBox::Ok);
  box.exec();
}

// Qt itself does not tell: Wayland takes no text from a window without the focus, X11 none where
// another program was just a little later.
bool QtToolkit::setClipboardText(TextView text) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  clipboard.setText(toQt(text));
  return fromQt(clipboard.text()) == text;
}

}  // namespace termvik
