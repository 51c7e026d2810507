// SPDX-License-Identifier: MIT
#include <iostream>
#include <unistd.h>

#include "platform.h"
#include "tool.h"

int main(int count, char** arguments) {
  using namespace termvik::tool;
  std::ios::sync_with_stdio(false);
  Streams streams{.in = std::cin,
                  .out = std::cout,
                  .err = std::cerr,
                  .errIsTerminal = isatty(STDERR_FILENO) != 0,
                  .inId = openFileId(STDIN_FILENO),
                  .outId = openFileId(STDOUT_FILENO)};
  return runTool({arguments + 1, arguments + count}, streams);
}
