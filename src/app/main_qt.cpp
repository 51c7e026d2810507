// The program where Qt carries its window.
#include <QApplication>

#include "app/program.h"
#include "toolkit/qt/qt_toolkit.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  termvik::QtToolkit::setUpApplication();
  const termvik::App app{.Path = termvik::programFolder(),
                         .decimalSeparator = termvik::userDecimalSeparator()};
  const termvik::Collation collation(termvik::userLocaleName());
  termvik::QtToolkit toolkit(collation);
  termvik::Program program(toolkit, collation, app);
  program.start();
  return QApplication::exec();
}
