// SPDX-License-Identifier: MIT
// Termvik.exe as another program of the desktop sees it, and what that program can do to it: with
// window messages, the clipboard and the mouse.
#pragma once

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>
#include <windows.h>

#include <gtest/gtest.h>

#include "common/system/wide_win.h"

// After the header that it needs.
#include <commctrl.h>

namespace termvik::test {

inline std::filesystem::path program;
inline std::filesystem::path scratch;

constexpr const wchar_t* kCaption = L"Termvik - Graphical and tools glossary";
constexpr WPARAM kAbout = 1004;  // of the nine items of the menu bar
constexpr WPARAM kReRead = 1005;
constexpr WPARAM kGlossVersions = 1006;
constexpr WPARAM kDoubletList = 1008;
constexpr std::string_view kGraph =
    "Graphical, small\r\n---\r\nS: t\xE5ng\r\nE: pliers\r\n---\r\nS: lim\r\nE: glue\r\nC: Sticks "
    "paper."
    "\r\n---\r\nS: ark\r\nE: sheet\r\n---\r\n";
constexpr std::string_view kTools =
    "Tools\r\n---\r\nS: lim\r\nE: size\r\nD: Leim\r\n---\r\nS: fil\r\nE: file\r\n";

using Rows = std::vector<std::wstring>;

inline std::wstring textOf(HWND window) {
  std::wstring text(10'000, L'\0');
  const LRESULT length =
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

// Until look() gives what is expected.
template <class Look, class Expected>
void waitFor(Look look, const Expected& expected) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (!(look() == expected) && std::chrono::steady_clock::now() < deadline) Sleep(20);
  ASSERT_EQ(look(), expected);
}

// A piece of memory in the program, where its list can write a text for us.
class MemoryInProgram {
 public:
  explicit MemoryInProgram(HANDLE process) : process_(process) {}
  ~MemoryInProgram() { VirtualFreeEx(process_, memory_, 0, MEM_RELEASE); }
  MemoryInProgram(const MemoryInProgram&) = delete;
  MemoryInProgram& operator=(const MemoryInProgram&) = delete;

  std::wstring rowOf(HWND list, LRESULT row) {
    LVITEMW item{};
    item.cchTextMax = 200;
    item.pszText = reinterpret_cast<wchar_t*>(memory_ + sizeof item);
    WriteProcessMemory(process_, memory_, &item, sizeof item, nullptr);
    const LRESULT length = SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                                        reinterpret_cast<LPARAM>(memory_));
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    ReadProcessMemory(process_, item.pszText, text.data(), 2 * text.size(), nullptr);
    return text;
  }

 private:
  HANDLE process_;
  std::byte* memory_ = static_cast<std::byte*>(
      VirtualAllocEx(process_, nullptr, 0x1000, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE));
};

class RealTermvik : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    std::filesystem::copy(program, exe);
    std::ofstream(folder / "graphword.txt", std::ios::binary) << kGraph;
    std::ofstream(folder / "toolsword.txt", std::ios::binary) << kTools;
    start();
  }
  void TearDown() override {
    TerminateProcess(process, 1);  // what has ended takes no notice
    CloseHandle(process);
  }

  void start() {
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION started{};
    ASSERT_NE(CreateProcessW(exe.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                             folder.c_str(), &how, &started),
              0);
    CloseHandle(started.hThread);
    process = started.hProcess;
    waitFor([] { return IsWindowVisible(FindWindowW(nullptr, kCaption)) != 0; }, true);
    window = FindWindowW(nullptr, kCaption);
    search = FindWindowExW(window, nullptr, WC_EDITW, nullptr);
    list = FindWindowExW(window, nullptr, WC_LISTVIEWW, nullptr);
    article = FindWindowExW(window, search, WC_EDITW, nullptr);
    if ((GetWindowLongW(search, GWL_STYLE) & ES_MULTILINE) != 0) std::swap(search, article);
  }

  // Asks the window to close, or lets the session end; gives the parameter file that it leaves.
  std::string close(UINT message = WM_CLOSE) const {
    PostMessageW(window, message, TRUE, 0);
    EXPECT_EQ(WaitForSingleObject(process, 10000), WAIT_OBJECT_0);
    DWORD status = 1;
    GetExitCodeProcess(process, &status);
    EXPECT_EQ(status, 0U);
    std::ifstream file(folder / "Termvik.par", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  static void click(HWND control) {
    PostMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
    PostMessageW(control, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
  }

  Rows rows() const {
    MemoryInProgram memory(process);
    Rows all;
    const LRESULT count = SendMessageW(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) all.push_back(memory.rowOf(list, row));
    return all;
  }

  RECT outer() const {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
  }

  std::filesystem::path folder = scratch / L"Ordböcker Ł";
  std::filesystem::path exe = folder / L"Termvik.exe";
  HANDLE process = nullptr;
  HWND window = nullptr;
  HWND search = nullptr;
  HWND list = nullptr;
  HWND article = nullptr;
};

// The message on the screen, answered when it has been read.
inline std::wstring message() {
  HWND box = nullptr;
  waitFor([&box] { return (box = FindWindowW(L"#32770", L"Termvik")) != nullptr; }, true);
  HWND prompt = FindWindowExW(box, nullptr, WC_STATICW, nullptr);
  if (textOf(prompt).empty()) prompt = FindWindowExW(box, prompt, WC_STATICW, nullptr);  // no icon
  std::wstring text = textOf(prompt);
  PostMessageW(box, WM_COMMAND, IDOK, 0);
  waitFor([box] { return IsWindow(box); }, FALSE);
  return text;
}

inline std::wstring clipboardText() {
  if (OpenClipboard(nullptr) == 0) return L"(taken)";
  HANDLE data = GetClipboardData(CF_UNICODETEXT);
  std::wstring text = data == nullptr ? L"(empty)" : static_cast<const wchar_t*>(GlobalLock(data));
  CloseClipboard();
  return text;
}

// Moves the mouse itself and presses or lets go of its button.
inline void mouse(POINT at, DWORD button) {
  constexpr LONG kWhole = 65536;  // what the width and the height of the screen count
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = MulDiv(at.x, kWhole, GetSystemMetrics(SM_CXSCREEN)) + 1;
  input.mi.dy = MulDiv(at.y, kWhole, GetSystemMetrics(SM_CYSCREEN)) + 1;
  input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | button;
  SendInput(1, &input, sizeof input);
}

}  // namespace termvik::test
