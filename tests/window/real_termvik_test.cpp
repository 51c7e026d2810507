// Drives Termvik.exe as another program of the desktop does: with window messages alone.
//
//   real_termvik_test PROGRAM SCRATCH
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

#include <gtest/gtest.h>

#include "common/wide_win.h"

// Behind the header that it needs.
#include <commctrl.h>

namespace termvik::test {

static std::filesystem::path program;
static std::filesystem::path scratch;

constexpr const wchar_t* kCaption = L"Termvik - Graphical and tools glossary";
constexpr WPARAM kDoubletList = 1008;  // the last of the nine items of the menu bar
constexpr std::string_view kGraph =
    "Graphical, small\r\n---\r\nS: t\xE5ng\r\nE: pliers\r\n---\r\nS: lim\r\nE: glue\r\nC: Sticks "
    "paper."
    "\r\n---\r\nS: ark\r\nE: sheet\r\n---\r\n";
constexpr std::string_view kTools =
    "Tools\r\n---\r\nS: lim\r\nE: size\r\nD: Leim\r\n---\r\nS: fil\r\nE: file\r\n";

using Rows = std::vector<std::wstring>;

static std::wstring textOf(HWND window) {
  std::wstring text(1000, L'\0');
  const LRESULT length =
      SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

// Until look() gives what is expected.
template <class Look, class Expected>
static void waitFor(Look look, const Expected& expected) {
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
    std::filesystem::remove_all(scratch);
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

  // Asks the window to close; gives the parameter file that it leaves.
  std::string close() const {
    PostMessageW(window, WM_CLOSE, 0, 0);
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

static std::wstring clipboardText() {
  if (OpenClipboard(nullptr) == 0) return L"(taken)";
  HANDLE data = GetClipboardData(CF_UNICODETEXT);
  std::wstring text = data == nullptr ? L"(empty)" : static_cast<const wchar_t*>(GlobalLock(data));
  CloseClipboard();
  return text;
}

TEST_F(RealTermvik, LooksWordsUpAndReportsDoublets) {
  click(FindWindowExW(window, nullptr, WC_BUTTONW, L"Both"));
  waitFor([this] { return rows(); },
          Rows{L"ark", L"fil", L"lim ------DUBBLETT-", L"lim ------DUBBLETT-", L"tång"});
  for (const wchar_t character : std::wstring(L"tån")) PostMessageW(search, WM_CHAR, character, 1);
  waitFor([this] { return textOf(search); }, L"tån");
  EXPECT_EQ(textOf(article), L"S: tång\r\nE: pliers\r\n\r\n");
  EXPECT_EQ(SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 4);

  PostMessageW(window, WM_COMMAND, kDoubletList, 0);
  waitFor([] { return FindWindowW(L"#32770", L"Termvik") != nullptr; }, true);
  const std::wstring rule(39, L'=');
  EXPECT_EQ(clipboardText(), L"DUBBLETTER\r\n" + rule +
                                 L"\r\n\r\n\r\n\r\nS: lim\r\nE: glue\r\n\r\nSticks paper."
                                 L"\r\n\r\nS: lim\r\nE: size\r\nD: Leim\r\n\r\n\r\n" +
                                 rule + L"\r\n\r\n");
  PostMessageW(FindWindowW(L"#32770", L"Termvik"), WM_COMMAND, IDOK, 0);
  waitFor([this] { return IsWindowEnabled(window); }, TRUE);
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
    EXPECT_EQ(close(), parameters);
    CloseHandle(process);
    start();
    waitFor([this] { return rows(); }, Rows{L"fil", L"lim"});
    Sleep(300);  // nor does it stir once it is there
    const RECT place = outer();
    EXPECT_EQ((std::array{place.left, place.top, place.right, place.bottom}),
              (std::array<long, 4>{211, 143, 211 + 833, 143 + 517}));
  }
  std::set<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    files.insert(entry.path().filename());
  }
  EXPECT_EQ(files, (std::set<std::filesystem::path>{"Termvik.exe", "Termvik.par", "graphword.txt",
                                                    "toolsword.txt"}));
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
