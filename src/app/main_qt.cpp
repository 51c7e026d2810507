// SPDX-License-Identifier: MIT
// The program where Qt carries its window.
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <utility>

#include <QApplication>

#include "app/program.h"
#include "out_of_memory.h"
#include "qt_end_requests.h"
#include "qt_start.h"
#include "toolkit/qt/qt_toolkit.h"

namespace {

// Qt's own work can run out of memory too, where no handler of the program is on the way. No
// exception may pass through the loop around it.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
      if (!outOfMemory) throw;
      outOfMemory();
      return true;
    }
  }

  std::function<void()> outOfMemory;
};

// Says why and ends. Termvik.par stays as it was, since it is written at closing alone.
[[noreturn]] void end() {
  if (!termvik::isOutOfMemory()) std::abort();
  std::fputs("Termvik does not have enough memory\n", stderr);
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
  std::set_terminate(end);
  termvik::QtEndRequests endRequests;
  const termvik::App app{.Path = termvik::programFolder(termvik::defWords::kFileNames),
                         .decimalSeparator = termvik::userDecimalSeparator()};
  const termvik::Collation collation(termvik::userLocaleName());
  // Qt takes its time to find the display (bench/start).
  termvik::LinesAhead ahead = termvik::readAhead(collation, *app.files, app.Path);
  auto starting = std::make_unique<termvik::QtStart>();
  Application application(argc, argv);
  starting.reset();
  termvik::QtToolkit::setUpApplication();
  termvik::QtToolkit toolkit(collation);
  termvik::Program program(toolkit, collation, app, std::move(ahead));
  application.outOfMemory = [&] { program.form().runOutOfMemory(); };
  endRequests.follow();
  program.start();
  return QApplication::exec();
}
