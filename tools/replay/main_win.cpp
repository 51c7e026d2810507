// SPDX-License-Identifier: MIT
// The command line comes in the code page of the system unless it is asked for in full.
#include <cstdio>
#include <fcntl.h>
#include <io.h>

#include "handles_win.h"
#include "tool.h"

int wmain(int count, wchar_t** arguments) {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  return termvik::replay::runTool(termvik::replay::Arguments(arguments + 1, arguments + count),
                                  [] { return termvik::replay::handlesJson().dump(); });
}
