// SPDX-License-Identifier: MIT
// The least Qt window with the same controls at the same places as the program's: what any program
// with that window waits for. It has Qt's own font, no picture, no texts but captions, and does
// nothing.
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStringListModel>

namespace {

void addMenu(QMenuBar& bar) {
  for (const char* caption : {"English", "Svenska", "Deutsch", "Francais", "About",
                              "Läs in ordlistefilerna igen", "Visa ordlisteversioner"}) {
    bar.addAction(QString::fromUtf8(caption));
  }
  bar.addAction(QStringLiteral("Skapa ordlistefil"))->setEnabled(false);
  bar.addAction(QStringLiteral("Skapa lista över dubbletter"));
}

void addChoices(QWidget* parent) {
  (new QRadioButton(QStringLiteral("Graphical glossary"), parent))->setGeometry(20, 8, 120, 17);
  (new QRadioButton(QStringLiteral("Tools glossary"), parent))->setGeometry(20, 27, 120, 17);
  (new QRadioButton(QStringLiteral("Both"), parent))->setGeometry(20, 45, 120, 17);
  (new QCheckBox(QStringLiteral("Markera dubletter!"), parent))->setGeometry(24, 64, 121, 17);
  auto* group = new QGroupBox(QStringLiteral("Specify look up in list or full search"), parent);
  group->setGeometry(144, 8, 281, 65);
  auto* whole = new QRadioButton(QStringLiteral("Search words in whole glossary"), group);
  whole->setGeometry(8, 35, 173, 25);
  (new QRadioButton(QStringLiteral("Look up word in list"), group))->setGeometry(8, 16, 129, 25);
  auto* again = new QPushButton(QStringLiteral("Search again"), group);
  again->setGeometry(184, 32, 89, 25);
  again->setEnabled(false);
}

void addColumns(QWidget* parent) {
  (new QLineEdit(parent))->setGeometry(16, 80, 252, 19);
  auto* words = new QListView(parent);
  words->setModel(new QStringListModel(words));
  words->setGeometry(16, 112, 252, 260);
  auto* article = new QPlainTextEdit(parent);
  article->setReadOnly(true);
  article->setGeometry(281, 152, 426, 220);
  (new QLabel(parent))->setGeometry(521, 0, 169, 113);
  auto* address = new QLabel(QStringLiteral("termvik.test"), parent);
  address->setGeometry(585, 120, 105, 25);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  addMenu(*window.menuBar());
  auto* client = new QWidget(&window);
  window.setCentralWidget(client);
  addChoices(client);
  addColumns(client);
  window.resize(721, 402 + window.menuBar()->sizeHint().height());
  window.show();
  return QApplication::exec();
}
