// SPDX-License-Identifier: MIT
// The program where the Windows API carries its window.
#include <cstdlib>
#include <utility>
#include <windows.h>

#include "app/program.h"
#include "out_of_memory.h"
#include "toolkit/win32/win32_toolkit.h"

namespace {

// Says why and ends. Termvik.par stays as it was, since it is written at closing alone.
[[noreturn]] void end() {
  if (!termvik::isOutOfMemory()) std::abort();
  MessageBoxW(nullptr, L"Termvik does not have enough memory", L"Termvik", MB_OK);
  ExitProcess(EXIT_FAILURE);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  std::set_terminate(end);
  // From here on no library is taken from the program's folder or the current one, where anything
  // can lie that was downloaded.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  const termvik::App app{.Path = termvik::programFolder(termvik::defWords::kFileNames),
                         .decimalSeparator = termvik::userDecimalSeparator()};
  const termvik::Collation collation(termvik::userLocaleName());
  termvik::LinesAhead ahead = termvik::readAhead(collation, *app.files, app.Path);
  termvik::Win32Toolkit toolkit(collation);
  termvik::Program program(toolkit, collation, app, std::move(ahead));
  program.start();
  toolkit.handleMessages([&toolkit] { return toolkit.Forms().empty(); });
  return 0;
}
