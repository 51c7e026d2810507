// SPDX-License-Identifier: MIT
#include "tool.h"

int main(int count, char** arguments) {
  return termvik::replay::runTool(termvik::replay::Arguments(arguments + 1, arguments + count));
}
