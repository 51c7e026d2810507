// What a person finds in the real main window beyond what the program asks of a toolkit.
#include "toolkit/win32/win32_window.h"

#include <gtest/gtest.h>

#include "dialogs/frm_about_design.h"
#include "lookup/frm_glossary_design.h"
#include "toolkit/win32/win32_user.h"

// Behind the headers that it needs.
#include <commctrl.h>

namespace termvik {
namespace {

class Win32MainWindow : public testing::Test {
 protected:
  Win32MainWindow() {
    window->Show();
    user->settle();
  }

  HWND shown(TextView name) const { return win32Shown(window->control(name)).shown(); }
  HWND hwnd() const { return dynamic_cast<Win32Window&>(*window).hwnd(); }

  std::string focused() const {
    for (const auto& control : window->controls()) {
      if (win32Shown(*control).shown() != GetFocus()) continue;
      const std::int32_t index = control->design().index;
      const std::string name = toUtf8(control->design().name);
      return index < 0 ? name : name + std::to_string(index);
    }
    return "none";
  }

  // Presses a key wherever the focus is.
  void press(int key) const {
    PostMessageW(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    user->settle();
  }

  Text copied(HWND box) const {
    Text text;
    user->seesClipboard = [&](TextView seen) { text = seen; };
    SendMessageW(box, WM_CHAR, 1, 1);  // Ctrl+A
    SendMessageW(box, WM_CHAR, 3, 1);  // Ctrl+C
    return text;
  }

  const Collation collation{"sv_SE"};
  const std::unique_ptr<User> user = makeWin32User(collation);
  const std::unique_ptr<Window> window = user->toolkit().createWindow(frmGlossaryDesign());
  ListBox& list = window->listBox(u"lstWords");
};

TEST_F(Win32MainWindow, TabGoesThroughTheControlsAndArrowsThroughAGroup) {
  window->commandButton(u"cmdSearchAgain").setEnabled(true);
  std::string visited;
  for (int i = 0; i < 8; ++i) {
    visited += focused() + " ";
    press(VK_TAB);
  }
  EXPECT_EQ(visited,
            "txtSearch lstWords txtArticle optGlossary0 optSearch0 cmdSearchAgain chkShowDoublet "
            "txtSearch ");
  EXPECT_FALSE(window->optionGroup(u"optGlossary").Value(0)) << "the focus alone chooses nothing";
  SetFocus(shown(u"optGlossary"));
  for (const int key : {VK_DOWN, VK_DOWN, VK_DOWN, VK_UP}) press(key);
  EXPECT_EQ(focused(), "optGlossary2");
  EXPECT_TRUE(window->optionGroup(u"optGlossary").Value(2));
  press(VK_TAB);
  EXPECT_EQ(focused(), "optSearch0");
}

TEST_F(Win32MainWindow, TheFocusComesBackWithTheWindow) {
  SetFocus(shown(u"txtArticle"));
  int left = 0;
  window->Deactivate = [&] { ++left; };
  user->toolkit().MsgBox(u"prompt");
  user->settle();
  EXPECT_EQ(left, 1);
  EXPECT_EQ(focused(), "txtArticle");
}

TEST_F(Win32MainWindow, ACharacterThatNoBoxShowsCutsNothingShort) {
  user->replaceText(window->textBox(u"txtSearch"), u"kil");
  SendMessageW(shown(u"txtSearch"), WM_CHAR, 1, 1);
  EXPECT_EQ(window->textBox(u"txtSearch").SelLength(), 3) << "Ctrl+A";
  TextBox& article = window->textBox(u"txtArticle");
  const Text word = Text(10'001, u'x') + u"\xD83D\xDE00";
  article.setText(word + u"\r\n" + word + u"\rS: kil\n" + Text(1, u'\0') + u"wedge");
  EXPECT_GT(SendMessageW(shown(u"txtArticle"), EM_GETLINECOUNT, 0, 0), 6);
  EXPECT_EQ(copied(shown(u"txtArticle")), word + u"\r\n" + word + u"\rS: kil\n wedge");
  SendMessageW(shown(u"txtArticle"), WM_CHAR, u'x', 1);
  EXPECT_EQ(copied(shown(u"txtArticle")).size(), article.text().size()) << "read only";
}

TEST_F(Win32MainWindow, HundredsOfThousandsOfRowsCostTheListNoMessage) {
  static int messages;
  static HWND view;
  messages = 0;
  view = shown(u"lstWords");
  const auto count = [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): Windows gives it so
    if (reinterpret_cast<const CWPSTRUCT*>(lParam)->hwnd == view) ++messages;
    return CallNextHookEx(nullptr, code, wParam, lParam);
  };
  HHOOK hook = SetWindowsHookExW(WH_CALLWNDPROC, count, nullptr, GetCurrentThreadId());
  for (int i = 0; i < 300'000; ++i) list.AddItem(fromUtf8("ord " + std::to_string(i % 90'000)));
  EXPECT_EQ(messages, 0);
  list.setListIndex(299'999);
  EXPECT_LT(messages, 100);
  UnhookWindowsHookEx(hook);
  EXPECT_EQ(SendMessageW(view, LVM_GETITEMCOUNT, 0, 0), 300'000);
  const LRESULT top = SendMessageW(view, LVM_GETTOPINDEX, 0, 0);
  EXPECT_EQ(top + SendMessageW(view, LVM_GETCOUNTPERPAGE, 0, 0), 300'000) << "scrolled to the end";
}

TEST_F(Win32MainWindow, TheListFindsTypedLettersAndKeepsItsSelection) {
  for (const TextView word : {u"ask", u"kil", u"sax"}) list.AddItem(word);
  list.setListIndex(0);
  HWND view = shown(u"lstWords");
  SendMessageW(view, WM_CHAR, u's', 1);
  EXPECT_EQ(list.ListIndex(), 2);
  RECT place;
  GetClientRect(view, &place);
  const LPARAM below = MAKELPARAM(place.right / 2, place.bottom - 5);
  PostMessageW(view, WM_LBUTTONDOWN, MK_LBUTTON, below);
  PostMessageW(view, WM_LBUTTONUP, 0, below);
  user->settle();
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(SendMessageW(view, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 2);
}

TEST_F(Win32MainWindow, ItFollowsTheResolutionOfItsScreen) {
  user->place(*window, {300, 300, 12000, 7500});
  int resized = 0;
  window->Resize = [&] { ++resized; };
  const auto sizes = [this] {
    RECT place;
    GetClientRect(shown(u"picLogo"), &place);
    LOGFONTW font;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): Windows gives it so
    auto* handle = reinterpret_cast<HFONT>(SendMessageW(shown(u"txtSearch"), WM_GETFONT, 0, 0));
    GetObjectW(handle, sizeof font, &font);
    return std::vector<long>{place.right, place.bottom, font.lfHeight};
  };
  EXPECT_EQ(sizes(), (std::vector<long>{169, 113, -13}));
  RECT suggested{100, 50, 1300, 800};
  SendMessageW(hwnd(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
  EXPECT_EQ(sizes(), (std::vector<long>{254, 170, -20}));
  EXPECT_EQ(window->outerPlace(), (Place{1000, 500, 12000, 7500}));
  EXPECT_EQ(resized, 1);
}

TEST_F(Win32MainWindow, EnterAndEscAnswerTheAboutBox) {
  const auto box = user->toolkit().createWindow(frmAboutDesign());
  std::string pressed;
  box->commandButton(u"cmdOK").Click = [&] { pressed += "OK "; };
  box->Click = [&] { pressed += "box "; };
  box->Show();
  user->settle();
  EXPECT_EQ(GetFocus(), win32Shown(box->control(u"cmdOK")).shown());
  press(VK_ESCAPE);
  press(VK_RETURN);
  SetFocus(win32Shown(box->control(u"Text1")).shown());
  press(VK_ESCAPE);
  press(VK_RETURN);
  user->click(box->commandButton(u"cmdOK"));
  EXPECT_EQ(pressed, "OK OK OK OK OK ");
}

}  // namespace
}  // namespace termvik
