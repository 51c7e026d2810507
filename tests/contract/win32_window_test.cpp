// SPDX-License-Identifier: MIT
// What a person does in the real main window beyond what the program asks of a toolkit.
#include <array>
#include <future>
#include <thread>

#include "win32_main_window.h"

namespace termvik {
namespace {

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
  SetFocus(handleOf(u"optGlossary"));
  for (const int key : {VK_DOWN, VK_DOWN, VK_DOWN, VK_UP}) press(key);
  EXPECT_EQ(focused(), "optGlossary2");
  EXPECT_TRUE(window->optionGroup(u"optGlossary").Value(2));
  press(VK_TAB);
  EXPECT_EQ(focused(), "optSearch0");
  press(VK_TAB);
  EXPECT_EQ(focused(), "cmdSearchAgain");
  window->commandButton(u"cmdSearchAgain").setEnabled(false);
  EXPECT_EQ(focused(), "chkShowDoublet") << "a button that is off can do nothing with a key";
}

TEST_F(Win32MainWindow, TheFocusComesBackWithTheWindow) {
  SetFocus(handleOf(u"txtArticle"));
  int left = 0;
  window->Deactivate = [&] { ++left; };
  hands->toolkit().MsgBox(u"prompt");
  hands->settle();
  EXPECT_EQ(left, 1);
  EXPECT_EQ(focused(), "txtArticle");
}

TEST_F(Win32MainWindow, ACharacterThatNoBoxShowsCutsNothingShort) {
  hands->replaceText(window->editBox(u"txtSearch"), u"kil");
  SendMessageW(handleOf(u"txtSearch"), WM_CHAR, 1, 1);
  EXPECT_EQ(window->editBox(u"txtSearch").SelLength(), 3) << "Ctrl+A";
  TextBox& article = window->textBox(u"txtArticle");
  const Text word = Text(10'001, u'x') + u"\xD83D\xDE00";
  article.setText(word + u"\r\n" + word + u"\rS: kil\n" + Text(1, u'\0') + u"wedge");
  EXPECT_GT(SendMessageW(handleOf(u"txtArticle"), EM_GETLINECOUNT, 0, 0), 6);
  EXPECT_EQ(copied(handleOf(u"txtArticle")), word + u"\r\n" + word + u"\rS: kil\n wedge");
  const LRESULT shown = SendMessageW(handleOf(u"txtArticle"), WM_GETTEXTLENGTH, 0, 0);
  Text end;
  hands->seesClipboard = [&](TextView seen) { end = seen; };
  SendMessageW(handleOf(u"txtArticle"), EM_SETSEL, static_cast<WPARAM>(shown - 5), shown);
  SendMessageW(handleOf(u"txtArticle"), WM_CHAR, 3, 1);  // Ctrl+C
  EXPECT_EQ(end, u"wedge") << "after breaks that the box had to add";
  SendMessageW(handleOf(u"txtArticle"), WM_CHAR, u'x', 1);
  EXPECT_EQ(copied(handleOf(u"txtArticle")).size(), article.text().size()) << "read only";
}

TEST_F(Win32MainWindow, CtrlBackspaceDeletesAWord) {
  struct Case {
    TextView text;
    int start;
    int end;
    TextView left;
  };
  EditBox& box = window->editBox(u"txtSearch");
  int changes = 0;
  box.Change = [&] { ++changes; };
  std::array<BYTE, 256> held{};
  held[VK_CONTROL] = 0x80;
  SetKeyboardState(held.data());
  for (const Case& c :
       {Case{u"två  ord  ", 10, 10, u"två  "}, Case{u"två ord", 6, 6, u"två d"},
        Case{u"ord", 3, 3, u""}, Case{u"två ord", 2, 5, u"tvrd"}, Case{u"  ord", 2, 2, u"ord"}}) {
    hands->replaceText(box, c.text);
    SendMessageW(handleOf(u"txtSearch"), EM_SETSEL, static_cast<WPARAM>(c.start), c.end);
    changes = 0;
    press(VK_BACK);
    EXPECT_EQ(box.text(), c.left);
    EXPECT_EQ(changes, 1);
  }
  hands->goToEnd(box);
  box.setSelStart(0);
  changes = 0;
  press(VK_BACK);
  EXPECT_EQ(changes, 0) << "before the first word is none";
  held[VK_CONTROL] = 0;
  SetKeyboardState(held.data());
}

TEST_F(Win32MainWindow, AReleaseWithoutItsPressIsNoClick) {
  int clicks = 0;
  EditBox& box = window->editBox(u"txtSearch");
  box.Click = [&] { ++clicks; };
  SendMessageW(handleOf(u"txtSearch"), WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
  EXPECT_EQ(clicks, 0);
  hands->click(box);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Win32MainWindow, ItWaitsForAClipboardThatAnotherProgramHolds) {
  std::promise<bool> held;
  std::thread other([&held] {
    held.set_value(OpenClipboard(nullptr) != 0);
    Sleep(1000);
    CloseClipboard();
  });
  EXPECT_TRUE(held.get_future().get());
  EXPECT_TRUE(hands->toolkit().setClipboardText(u"text"));
  other.join();
}

TEST_F(Win32MainWindow, HundredsOfThousandsOfRowsCostTheListNoMessage) {
  static int messages;
  static HWND view;
  messages = 0;
  view = handleOf(u"lstWords");
  const auto count = [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): Windows gives it so
    if (reinterpret_cast<const CWPSTRUCT*>(lParam)->hwnd == view) ++messages;
    return CallNextHookEx(nullptr, code, wParam, lParam);
  };
  HHOOK hook = SetWindowsHookExW(WH_CALLWNDPROC, count, nullptr, GetCurrentThreadId());
  for (int i = 0; i < 300'000; ++i) list.AddItem(fromUtf8("ord " + std::to_string(i % 90'000)), i);
  EXPECT_EQ(messages, 0);
  list.setListIndex(299'999);
  EXPECT_LT(messages, 100);
  UnhookWindowsHookEx(hook);
  EXPECT_EQ(SendMessageW(view, LVM_GETITEMCOUNT, 0, 0), 300'000);
  const LRESULT top = SendMessageW(view, LVM_GETTOPINDEX, 0, 0);
  EXPECT_EQ(top + SendMessageW(view, LVM_GETCOUNTPERPAGE, 0, 0), 300'000) << "scrolled to the end";
}

TEST_F(Win32MainWindow, TheListFindsTypedLettersAndKeepsItsSelection) {
  for (const TextView word : {u"ask", u"kil", u"sax"}) list.AddItem(word, 1);
  list.setListIndex(0);
  HWND view = handleOf(u"lstWords");
  SendMessageW(view, WM_CHAR, u's', 1);
  EXPECT_EQ(list.ListIndex(), 2);
  RECT place;
  GetClientRect(view, &place);
  const LPARAM below = MAKELPARAM(place.right / 2, place.bottom - 5);
  PostMessageW(view, WM_LBUTTONDOWN, MK_LBUTTON, below);
  PostMessageW(view, WM_LBUTTONUP, 0, below);
  hands->settle();
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_EQ(SendMessageW(view, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 2);
}

TEST_F(Win32MainWindow, KeysAndClicksAnswerTheAboutBox) {
  const auto box = hands->toolkit().createWindow(frmAboutDesign());
  std::string pressed;
  box->commandButton(u"cmdOK").Click = [&] { pressed += "OK "; };
  box->Click = [&] { pressed += "box "; };
  box->Show();
  hands->settle();
  EXPECT_EQ(GetFocus(), win32Widget(box->control(u"cmdOK")).handle());
  press(VK_ESCAPE);
  press(VK_RETURN);
  SetFocus(win32Widget(box->control(u"Text1")).handle());
  press(VK_ESCAPE);
  press(VK_RETURN);
  hands->click(box->commandButton(u"cmdOK"));
  EXPECT_EQ(pressed, "OK OK OK OK OK ");
  for (const TextView name : {u"Label1", u"lblTitle", u"picIcon"}) hands->click(box->control(name));
  EXPECT_EQ(pressed, "OK OK OK OK OK ") << "labels and pictures do nothing";
  hands->click(box->control(u"Line1"));
  EXPECT_EQ(pressed, "OK OK OK OK OK box ") << "a line is no control";
}

}  // namespace
}  // namespace termvik
