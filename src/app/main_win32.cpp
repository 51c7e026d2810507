// The program where the Windows API carries its window.
#include <windows.h>

#include "app/program.h"
#include "toolkit/win32/win32_toolkit.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  const termvik::App app{.Path = termvik::programFolder(),
                         .decimalSeparator = termvik::userDecimalSeparator()};
  const termvik::Collation collation(termvik::userLocaleName());
  termvik::Win32Toolkit toolkit(collation);
  termvik::Program program(toolkit, collation, app);
  program.start();
  toolkit.handleMessages([&toolkit] { return toolkit.Forms().empty(); });
  return 0;
}
