// SPDX-License-Identifier: MIT
#include "toolkit/qt/qt_toolkit.h"

#include <QApplication>
#include <QClipboard>
#include <QIcon>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include "common/system/app.h"
#include "qt_text.h"
#include "qt_window.h"
#include "toolkit/shared/shown_limits.h"

// Outside the namespace, as the macro asks; a static library's pictures are not there by
// themselves.
static void initPictures() { Q_INIT_RESOURCE(pictures); }

namespace termvik {

namespace {

// In pixels: what a message box has around its text at the most, how much narrower than the screen
// it stays, and the least width at which it breaks the lines of its text.
constexpr QSize kAroundMessage{80, 160};
constexpr int kBesideMessage = 480;
constexpr int kMessageWidth = 400;

// Whether a message box with that text has its button on the screen.
bool fitsScreen(TextView text, const QWidget& box) {
  const QRect place = box.fontMetrics().boundingRect(
      QRect(0, 0, kMessageWidth, 0), Qt::TextWordWrap | Qt::TextExpandTabs, toQt(text));
  const QSize room = box.screen()->availableSize() - kAroundMessage;
  return place.width() <= room.width() - kBesideMessage && place.height() <= room.height();
}

}  // namespace

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

// In the font of the program's windows, and with Ctrl+C for the whole text.
void QtToolkit::MsgBox(TextView prompt) {
  showIcon();
  QWidget* owner = QApplication::activeWindow();
  if (owner == nullptr && !open_.empty()) owner = &dynamic_cast<QtWindow&>(*open_.back()).widget();
  QMessageBox box(owner);
  if (owner != nullptr) box.setFont(owner->font());
  box.setWindowTitle(toQt(kProgramName));
  box.setTextFormat(Qt::PlainText);
  box.setText(
      toQt(messageThatFits(prompt, [&box](TextView text) { return fitsScreen(text, box); })));
  box.addButton(QMessageBox::Ok);
  const QShortcut copies(QKeySequence::Copy, &box);
  QObject::connect(&copies, &QShortcut::activated, &box,
                   [prompt] { QGuiApplication::clipboard()->setText(toQt(prompt)); });
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
