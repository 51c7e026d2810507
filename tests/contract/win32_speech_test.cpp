// SPDX-License-Identifier: MIT
// What a screen reader is told of the main window, by the events that it gets where the system has
// no notifications.
#include <string>
#include <utility>

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

}  // namespace
}  // namespace termvik
