// SPDX-License-Identifier: MIT
// What a screen reader is told of the main window, by the events that it gets where the system has
// no notifications.
#include <string>
#include <utility>
#include <vector>

#include "win32_main_window.h"

namespace termvik {
namespace {

std::string told;  // each with a blank after it

void CALLBACK hear(HWINEVENTHOOK, DWORD, HWND region, LONG, LONG, DWORD, DWORD) {
  std::wstring text(1000, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(region, text.data(), 1000)));
  told += toUtf8(fromWide(text)) + " ";
}

class Win32Speech : public Win32MainWindow {
 protected:
  ~Win32Speech() override { UnhookWinEvent(hook_); }

  std::string rest() const {
    for (int i = 0; i < 20; ++i) {
      Sleep(10);
      hands->settle();
    }
    return std::exchange(told, {});
  }

 private:
  HWINEVENTHOOK hook_ =
      SetWinEventHook(EVENT_OBJECT_LIVEREGIONCHANGED, EVENT_OBJECT_LIVEREGIONCHANGED, nullptr,
                      &hear, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
};

TEST_F(Win32Speech, TheNewestOfManyUtterancesIsSaidAndTheSameOneAgain) {
  ASSERT_TRUE(window->isHeard());
  for (const TextView utterance : {u"f", u"fä", u"färg"}) window->say(utterance);
  EXPECT_EQ(rest(), "färg ");
  window->say(u"färg");
  EXPECT_EQ(rest(), "färg ");
  EXPECT_EQ(focused(), "txtSearch");
}

// Else it would say a row of hyphens before the word's name is heard.
TEST_F(Win32Speech, ARowIsReadByItsNameAndPaintedAsItIs) {
  for (const TextView row : {u"----", u"sax"}) list.AddItem(row, 1);
  HWND view = handleOf(u"lstWords");
  const auto painted = [&] {
    InvalidateRect(view, nullptr, TRUE);
    hands->settle();
    std::vector<COLORREF> pixels;
    HDC context = GetDC(view);
    for (int y = 0; y < 20; ++y) {
      for (int x = 0; x < 60; ++x) pixels.push_back(GetPixel(context, x, y));
    }
    ReleaseDC(view, context);
    return pixels;
  };
  const std::vector<COLORREF> before = painted();
  list.RowName = [](TextView row) { return row == u"----" ? Text(u"named") : Text(row); };
  SystemParametersInfoW(SPI_SETSCREENREADER, TRUE, nullptr, 0);
  EXPECT_EQ(painted(), before);
  const auto read = [view](int row) {
    std::wstring text(100, L'\0');
    LVITEMW asked{};
    asked.pszText = text.data();
    asked.cchTextMax = 100;
    SendMessageW(view, LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&asked));
    return toUtf8(fromWide(asked.pszText));
  };
  EXPECT_EQ(read(0) + " " + read(1), "named sax");
  SystemParametersInfoW(SPI_SETSCREENREADER, FALSE, nullptr, 0);
  EXPECT_EQ(read(0), "----");
}

}  // namespace
}  // namespace termvik
