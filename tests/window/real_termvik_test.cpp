// SPDX-License-Identifier: MIT
// Drives Termvik.exe as another program of the desktop does.
//
//   real_termvik_test PROGRAM SCRATCH
//
// Where SCRATCH is a linked folder, the program has to know it by the link.
#include "real_termvik.h"

#include <set>

namespace termvik::test {

TEST_F(RealTermvik, LooksWordsUpAndReportsDoublets) {
  click(FindWindowExW(window, nullptr, WC_BUTTONW, L"Both"));
  waitFor([this] { return rows(); },
          Rows{L"ark", L"fil", L"lim ------DUBBLETT-", L"lim ------DUBBLETT-", L"tång"});
  for (const wchar_t character : std::wstring(L"tån")) PostMessageW(search, WM_CHAR, character, 1);
  waitFor([this] { return textOf(search); }, L"tån");
  EXPECT_EQ(textOf(article), L"S: tång\r\nE: pliers\r\n\r\n");
  EXPECT_EQ(SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 4);

  ASSERT_NE(OpenClipboard(nullptr), 0);
  PostMessageW(window, WM_COMMAND, kDoubletList, 0);
  EXPECT_EQ(message(), L"Could not open the clipboard");
  CloseClipboard();
  PostMessageW(window, WM_COMMAND, kDoubletList, 0);
  EXPECT_TRUE(message().starts_with(L"Dubbletterna finns nu"));
  const std::wstring rule(39, L'=');
  EXPECT_EQ(clipboardText(), L"DUBBLETTER\r\n" + rule +
                                 L"\r\n\r\n\r\n\r\nS: lim\r\nE: glue\r\n\r\nSticks paper."
                                 L"\r\n\r\nS: lim\r\nE: size\r\nD: Leim\r\n\r\n\r\n" +
                                 rule + L"\r\n\r\n");
  EXPECT_TRUE(close().ends_with("GLOSSARYINDEX 2\r\n"));
}

TEST_F(RealTermvik, StandsWhereItStoodAndLeavesNothingElse) {
  click(FindWindowExW(window, nullptr, WC_BUTTONW, L"Tools glossary"));
  SetWindowPos(window, nullptr, 211, 143, 833, 517, SWP_NOZORDER | SWP_NOACTIVATE);
  waitFor([this] { return outer().right; }, 211 + 833);
  const auto twips = [this](long pixels) {
    return std::to_string(pixels * 1440 / static_cast<long>(GetDpiForWindow(window)));
  };
  const std::string parameters = "WINDOWSSTATE 0\r\nWINTOP " + twips(143) + "\r\nWINLEFT " +
                                 twips(211) + "\r\nWINWIDTH " + twips(833) + "\r\nWINHEIGHT " +
                                 twips(517) + "\r\nGLOSSARYINDEX 1\r\n";
  for (int day = 0; day < 3; ++day) {
    EXPECT_EQ(close(day == 1 ? WM_ENDSESSION : WM_CLOSE), parameters);
    CloseHandle(process);
    start();
    waitFor([this] { return rows(); }, Rows{L"fil", L"lim"});
    Sleep(300);  // nor does it stir once it is there
    const RECT place = outer();
    EXPECT_EQ((std::array{place.left, place.top, place.right, place.bottom}),
              (std::array<long, 4>{211, 143, 211 + 833, 143 + 517}));
  }
  ShowWindow(window, SW_MAXIMIZE);
  EXPECT_TRUE(close().starts_with("WINDOWSSTATE 2\r\n"));
  CloseHandle(process);
  start();
  EXPECT_EQ(IsZoomed(window), TRUE);
  std::set<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    files.insert(entry.path().filename());
  }
  EXPECT_EQ(files, (std::set<std::filesystem::path>{"Termvik.exe", "Termvik.par", "graphword.txt",
                                                    "toolsword.txt"}));
}

TEST_F(RealTermvik, StaysOpenBehindABoxWhichAClickCloses) {
  const auto box = [] { return FindWindowW(L"TermvikWindow", L""); };
  const auto hasBox = [&] { return IsWindowVisible(box()) != 0; };
  PostMessageW(search, WM_CHAR, L'x', 1);
  PostMessageW(window, WM_COMMAND, kAbout, 0);
  waitFor(hasBox, true);
  HWND about = box();
  SendMessageW(window, WM_COMMAND, kAbout, 0);
  EXPECT_EQ(box(), about) << "a second About box";
  SendMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_EQ(IsWindowVisible(window) + IsWindowVisible(about), 2);

  // The search box lies right under the bare left edge of the About box.
  RECT edge{};
  GetWindowRect(about, &edge);
  POINT bare{edge.left + 4, edge.top + 100};
  RECT place{};
  GetWindowRect(search, &place);
  const RECT outside = outer();
  SetWindowPos(window, nullptr, outside.left + bare.x - place.left - 50,
               outside.top + bare.y - place.top - 8, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  mouse(bare, MOUSEEVENTF_LEFTDOWN);
  Sleep(300);
  EXPECT_EQ(IsWindowVisible(about), TRUE) << "a press is not yet a click";
  mouse(bare, MOUSEEVENTF_LEFTUP);
  waitFor(hasBox, false);
  Sleep(300);
  EXPECT_EQ(SendMessageW(search, EM_GETSEL, 0, 0), MAKELONG(1, 1)) << "its release is a click here";
  mouse(bare, MOUSEEVENTF_LEFTDOWN);
  mouse(bare, MOUSEEVENTF_LEFTUP);
  waitFor([this] { return SendMessageW(search, EM_GETSEL, 0, 0); }, MAKELONG(0, 1));

  PostMessageW(window, WM_COMMAND, kGlossVersions, 0);
  waitFor([this] { return IsWindowEnabled(window); }, FALSE);
  SendMessageW(window, WM_CLOSE, 0, 0);
  const std::wstring graph = std::filesystem::path(folder / L"graphword.txt").make_preferred();
  EXPECT_TRUE(message().starts_with(L"Graphical glossary:\r\nFilename: " + graph + L"\r\n"));
  close();
}

TEST_F(RealTermvik, KeepsTheButtonOfALongMessageOnTheScreen) {
  std::string words;
  for (int i = 0; i < 10'000; ++i) words += i % 7 == 6 ? "\n" : "glossary ";
  for (const std::string& line : {words, std::string(70'000, 'x')}) {
    std::ofstream(folder / "graphword.txt", std::ios::binary) << line;
    PostMessageW(window, WM_COMMAND, kReRead, 0);
    PostMessageW(window, WM_COMMAND, kGlossVersions, 0);
    HWND box = nullptr;
    waitFor([&box] { return (box = FindWindowW(L"#32770", L"Termvik")) != nullptr; }, true);
    waitFor([box] { return IsWindowVisible(box); }, TRUE);
    RECT button{};
    GetWindowRect(FindWindowExW(box, nullptr, WC_BUTTONW, nullptr), &button);
    EXPECT_TRUE(button.left >= 0 && button.right <= GetSystemMetrics(SM_CXSCREEN) &&
                button.top >= 0 && button.bottom <= GetSystemMetrics(SM_CYSCREEN))
        << button.right << ", " << button.bottom;
    EXPECT_TRUE(message().ends_with(L"\x2026"));
  }
}

TEST(Executable, IsSmallAndTellsItsVersion) {
  EXPECT_LT(std::filesystem::file_size(program), 3'000'000U);
  std::vector<std::byte> versions(GetFileVersionInfoSizeW(program.c_str(), nullptr));
  GetFileVersionInfoW(program.c_str(), 0, static_cast<DWORD>(versions.size()), versions.data());
  VS_FIXEDFILEINFO* version = nullptr;
  UINT size = 0;
  ASSERT_NE(VerQueryValueW(versions.data(), L"\\", reinterpret_cast<void**>(&version), &size), 0);
  EXPECT_EQ(version->dwFileVersionMS, MAKELONG(TERMVIK_VERSION_MINOR, TERMVIK_VERSION_MAJOR));
  EXPECT_EQ(version->dwFileVersionLS, MAKELONG(0, TERMVIK_VERSION_REVISION));
  const auto tells = [&](const wchar_t* name) {
    const std::wstring path = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
    void* text = nullptr;
    return VerQueryValueW(versions.data(), path.c_str(), &text, &size) != 0 && size > 1;
  };
  EXPECT_TRUE(tells(L"CompanyName") && tells(L"LegalCopyright") && tells(L"ProductVersion"));
}

}  // namespace termvik::test

int wmain(int count, wchar_t** arguments) {
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  testing::InitGoogleTest(&count, arguments);
  if (count != 3) return 2;
  termvik::test::program = std::filesystem::absolute(arguments[1]);
  termvik::test::scratch = std::filesystem::absolute(arguments[2]);
  return RUN_ALL_TESTS();
}
