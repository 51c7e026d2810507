// SPDX-License-Identifier: MIT
// The command line comes in the code page of the system unless it is asked for in full, and a
// console shows all characters only when it is written to in UTF-16.
#include <conio.h>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <iostream>
#include <streambuf>
#include <vector>
#include <windows.h>

#include "common/system/wide_win.h"
#include "platform.h"
#include "tool.h"

namespace {

using namespace termvik;
using namespace termvik::tool;

// Takes UTF-8 and writes it to a console a line at a time.
class ConsoleBuffer : public std::streambuf {
 public:
  explicit ConsoleBuffer(HANDLE console) : console_(console) {}
  ~ConsoleBuffer() override { show(); }
  ConsoleBuffer(const ConsoleBuffer&) = delete;
  ConsoleBuffer& operator=(const ConsoleBuffer&) = delete;

 protected:
  int_type overflow(int_type byte) override {
    if (byte == traits_type::eof()) return 0;
    waiting_ += static_cast<char>(byte);
    if (byte == '\n') show();
    return byte;
  }
  int sync() override {
    show();
    return 0;
  }

 private:
  void show() {
    const Text text = fromUtf8(waiting_);
    waiting_.clear();
    DWORD written = 0;
    WriteConsoleW(console_, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  }

  HANDLE console_;
  std::string waiting_;
};

bool isConsole(HANDLE handle) {
  DWORD mode = 0;
  return GetConsoleMode(handle, &mode) != 0;
}

// The window closes with the program when it was opened for it, as when a file is dropped on it.
void waitForKeyInOwnConsole() {
  DWORD process = 0;
  if (!isConsole(GetStdHandle(STD_INPUT_HANDLE)) || GetConsoleProcessList(&process, 1) != 1) return;
  std::cerr << "Press a key to close this window" << std::flush;
  _getwch();
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  HANDLE outHandle = GetStdHandle(STD_OUTPUT_HANDLE);
  HANDLE errHandle = GetStdHandle(STD_ERROR_HANDLE);
  ConsoleBuffer outConsole(outHandle);
  ConsoleBuffer errConsole(errHandle);
  if (isConsole(outHandle)) std::cout.rdbuf(&outConsole);
  if (isConsole(errHandle)) std::cerr.rdbuf(&errConsole);
  std::vector<std::string> texts;
  for (int i = 1; i < count; ++i) texts.push_back(argumentOf(arguments[i]));
  Streams streams{.in = std::cin,
                  .out = std::cout,
                  .err = std::cerr,
                  .errIsTerminal = isConsole(errHandle),
                  .inId = openFileId(_fileno(stdin)),
                  .outId = openFileId(_fileno(stdout))};
  const int status = runTool(texts, streams);
  std::cout.flush();
  waitForKeyInOwnConsole();
  std::cout.rdbuf(nullptr);
  std::cerr.rdbuf(nullptr);
  return status;
}
