// SPDX-License-Identifier: MIT
// How the real windows look: fonts, captions and pictures at every resolution.
#include <algorithm>
#include <cstdlib>

#include "win32_main_window.h"

namespace termvik {
namespace {

HFONT fontOf(HWND control) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): Windows gives it so
  return reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
}

RECT onScreen(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  return place;
}

using Picture = std::vector<std::vector<COLORREF>>;  // rows of pixels

Picture colours(HWND window) {
  RECT place;
  GetClientRect(window, &place);
  HDC context = GetDC(window);
  Picture all;
  for (int y = 0; y < place.bottom; ++y) {
    all.emplace_back();
    for (int x = 0; x < place.right; ++x) all.back().push_back(GetPixel(context, x, y));
  }
  ReleaseDC(window, context);
  return all;
}

// How many columns show nothing but the background, from the left and from the right.
std::pair<int, int> bareEdges(const Picture& seen, COLORREF back) {
  const int width = static_cast<int>(seen[0].size());
  const auto isBare = [&](int x) {
    return std::all_of(seen.begin(), seen.end(),
                       [&](const auto& row) { return row[static_cast<std::size_t>(x)] == back; });
  };
  int left = 0;
  while (left < width && isBare(left)) ++left;
  int right = 0;
  while (right < width && isBare(width - 1 - right)) ++right;
  return {left, right};
}

// While it lives, the user has chosen another font for all windows.
class OtherUserFont {
 public:
  explicit OtherUserFont(std::wstring_view family, LONG height) {
    before_.cbSize = sizeof before_;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof before_, &before_, 0);
    NONCLIENTMETRICSW other = before_;
    other.lfMessageFont = {};
    other.lfMessageFont.lfHeight = height;
    family.copy(other.lfMessageFont.lfFaceName, LF_FACESIZE - 1);
    SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof other, &other, 0);
  }
  ~OtherUserFont() { SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof before_, &before_, 0); }
  OtherUserFont(const OtherUserFont&) = delete;
  OtherUserFont& operator=(const OtherUserFont&) = delete;

 private:
  NONCLIENTMETRICSW before_{};
};

TEST_F(Win32MainWindow, ItFollowsTheResolutionOfItsScreen) {
  hands->place(*window, {300, 300, 12000, 7500});
  int resized = 0;
  window->Resize = [&] { ++resized; };
  const auto sizes = [this] {
    RECT place;
    GetClientRect(handleOf(u"picLogo"), &place);
    LOGFONTW font;
    GetObjectW(fontOf(handleOf(u"txtSearch")), sizeof font, &font);
    ICONINFO icon;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): Windows gives it so
    GetIconInfo(reinterpret_cast<HICON>(SendMessageW(hwnd(), WM_GETICON, ICON_SMALL, 0)), &icon);
    BITMAP picture;
    GetObjectW(icon.hbmColor, sizeof picture, &picture);
    return std::vector<long>{place.right, place.bottom, font.lfHeight, picture.bmWidth};
  };
  EXPECT_EQ(sizes(), (std::vector<long>{169, 113, -13, 16}));
  RECT suggested{100, 50, 1300, 800};
  SendMessageW(hwnd(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
  EXPECT_EQ(sizes(), (std::vector<long>{254, 170, -20, 24}));
  EXPECT_EQ(window->outerPlace(), (Place{1000, 500, 12000, 7500}));
  EXPECT_EQ(resized, 1);
}

TEST_F(Win32MainWindow, AnySizeIsTakenAndScrollBarsStayInSight) {
  hands->place(*window, {300, 300, 600, 750});
  const RECT small = onScreen(hwnd());
  EXPECT_EQ(small.right - small.left, 40);
  EXPECT_EQ(small.bottom - small.top, 50);
  hands->place(*window, {300, 300, 12000, 7500});
  for (const TextView name : {u"lstWords", u"txtArticle"}) {
    window->control(name).setHeight(9000);
    window->control(name).setWidth(15000);
    RECT inside;
    GetClientRect(hwnd(), &inside);
    RECT place = onScreen(handleOf(name));
    MapWindowPoints(nullptr, hwnd(), reinterpret_cast<POINT*>(&place), 2);
    EXPECT_TRUE(place.right <= inside.right && place.bottom <= inside.bottom) << toUtf8(name);
  }
}

TEST_F(Win32MainWindow, OnlyTheCaptionThatIsTooLongLeavesTheUsersFont) {
  HFONT before = fontOf(handleOf(u"chkShowDoublet"));
  SendMessageW(hwnd(), WM_SETTINGCHANGE, 0, 0);
  EXPECT_EQ(fontOf(handleOf(u"chkShowDoublet")), before) << "no font has changed";
  struct Case {
    int dpi;
    int height;  // at 96 dpi; in it captions are about as wide as in the usual font of Windows
  };
  for (const auto& [dpi, height] : {Case{96, -11}, {120, -12}, {144, -12}, {192, -12}}) {
    const OtherUserFont font(L"Liberation Sans", height);
    SendMessageW(hwnd(), WM_SETTINGCHANGE, 0, 0);
    RECT place{0, 0, MulDiv(800, dpi, 96), MulDiv(500, dpi, 96)};
    if (dpi != 96) {
      SendMessageW(hwnd(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
    }
    int inOwnSize = 0;
    std::string others;
    for (const auto& control : window->controls()) {
      if (control->design().caption.empty() || control->design().font.points > 0) continue;
      HWND handle = win32Widget(*control).handle();
      LOGFONTW used;
      GetObjectW(fontOf(handle), sizeof used, &used);
      EXPECT_STREQ(used.lfFaceName, L"Liberation Sans");
      const bool isOwn = used.lfHeight == MulDiv(height, dpi, 96) && used.lfWidth == 0;
      if (!isOwn) others += toUtf8(control->design().caption);
      inOwnSize += isOwn ? 1 : 0;
      SIZE needed{};
      SendMessageW(handle, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&needed));
      EXPECT_LE(needed.cx, onScreen(handle).right - onScreen(handle).left);
    }
    EXPECT_EQ(inOwnSize, 7) << dpi;
    EXPECT_EQ(others, "Search words in whole glossary") << dpi;
    EXPECT_LE(onScreen(handleOf(u"chkShowDoublet")).right, onScreen(handleOf(u"Frame1")).left)
        << "it paints over the line";
  }
}

TEST_F(Win32MainWindow, TheSelectedRowStandsOutInView) {
  for (int i = 0; i < 200; ++i) list.AddItem(fromUtf8("ord " + std::to_string(1000 + i)), i);
  HWND view = handleOf(u"lstWords");
  list.setListIndex(0);
  hands->settle();
  list.setListIndex(150);
  hands->settle();
  const LRESULT top = SendMessageW(view, LVM_GETTOPINDEX, 0, 0);
  EXPECT_TRUE(top <= 150 && 150 < top + SendMessageW(view, LVM_GETCOUNTPERPAGE, 0, 0)) << top;
  EXPECT_EQ(focused(), "txtSearch");
  RECT row{LVIR_BOUNDS, 0, 0, 0};
  SendMessageW(view, LVM_GETITEMRECT, 150, reinterpret_cast<LPARAM>(&row));
  EXPECT_EQ(colours(view)[static_cast<std::size_t>(row.top + 3)].back(),
            GetSysColor(COLOR_HIGHLIGHT));
  list.setWidth(4500);
  RECT inside;
  GetClientRect(view, &inside);
  EXPECT_EQ(SendMessageW(view, LVM_GETCOLUMNWIDTH, 0, 0), inside.right) << "wider than before";
  list.Clear();
  for (int i = 0; i < 200; ++i) list.AddItem(fromUtf8("word " + std::to_string(1000 + i)), i);
  hands->settle();
  EXPECT_EQ(SendMessageW(view, LVM_GETTOPINDEX, 0, 0), 0) << "another list begins at its top";
}

TEST_F(Win32MainWindow, OptionsShowWhatTheProgramChooses) {
  OptionGroup& glossaries = window->optionGroup(u"optGlossary");
  for (const std::int32_t chosen : {1, 2, 0}) {
    glossaries.setValue(chosen, true);
    for (const auto& control : window->controls()) {
      if (control->design().name != u"optGlossary") continue;
      const bool shown = SendMessageW(win32Widget(*control).handle(), BM_GETCHECK, 0, 0) != 0;
      EXPECT_EQ(shown, control->design().index == chosen) << chosen;
    }
  }
}

TEST_F(Win32MainWindow, WhatTakesInputLiesAboveTheRest) {
  std::string order;
  for (HWND child = GetTopWindow(hwnd()); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    for (const auto& control : window->controls()) {
      if (win32Widget(*control).handle() != child) continue;
      const ControlKind kind = control->design().kind;
      const bool isToBeSeen = kind == ControlKind::Label || kind == ControlKind::PictureBox ||
                              kind == ControlKind::Frame;
      order += isToBeSeen ? "seen " : "input ";
    }
  }
  EXPECT_LT(order.rfind("input"), order.find("seen")) << order;
}

TEST_F(Win32MainWindow, TheMenuBarAndTheArticleLookAsDesigned) {
  std::string grey;
  for (int i = 0; i < GetMenuItemCount(GetMenu(hwnd())); ++i) {
    const UINT state = GetMenuState(GetMenu(hwnd()), static_cast<UINT>(i), MF_BYPOSITION);
    if ((state & MF_GRAYED) != 0) grey += std::to_string(i);
  }
  EXPECT_EQ(grey, "7");
  const auto [left, right] =
      bareEdges(colours(handleOf(u"lblInternet")), GetSysColor(COLOR_BTNFACE));
  EXPECT_GT(left, right) << "the address ends at the right";
  SCROLLBARINFO bar{};
  bar.cbSize = sizeof bar;
  GetScrollBarInfo(handleOf(u"txtArticle"), static_cast<LONG>(OBJID_VSCROLL), &bar);
  EXPECT_EQ(bar.rgstate[0] & STATE_SYSTEM_INVISIBLE, 0U);
}

TEST_F(Win32MainWindow, TheAboutBoxLooksAsDesigned) {
  const auto box = hands->toolkit().createWindow(frmAboutDesign());
  box->textBox(u"Text2").setText(u"Authors");
  box->Show();
  hands->settle();
  const Picture whole = colours(dynamic_cast<Win32Window&>(*box).hwnd());
  EXPECT_EQ(whole[0][0], GetSysColor(COLOR_WINDOWFRAME));
  for (const auto& control : box->controls()) {
    const ControlDesign& design = control->design();
    if (design.kind == ControlKind::Line) continue;
    const Picture seen = colours(win32Widget(*control).handle());
    const COLORREF back = seen[1][1];
    const bool isTip = design.backColour == Colour::ToolTipBackground;
    if (design.kind != ControlKind::CommandButton) {
      EXPECT_EQ(back, GetSysColor(isTip ? COLOR_INFOBK : COLOR_BTNFACE)) << toUtf8(design.name);
    }
    const auto [left, right] = bareEdges(seen, back);
    EXPECT_LT(left + right, static_cast<int>(seen[0].size())) << toUtf8(design.name) << " is empty";
    if (design.alignment == Alignment::Centre) {
      EXPECT_LE(std::abs(left - right), 8) << toUtf8(design.name) << " is not in the middle";
    }
  }
}

TEST_F(Win32MainWindow, TheLabelsOfTheAboutBoxEndInsideIt) {
  const auto box = hands->toolkit().createWindow(frmAboutDesign());
  for (const auto& control : box->controls()) {
    if (control->design().kind != ControlKind::Label) continue;
    HWND handle = win32Widget(*control).handle();
    RECT place;
    GetClientRect(handle, &place);
    RECT needed = place;
    HDC context = GetDC(handle);
    SelectObject(context, fontOf(handle));
    const std::wstring caption = wide(control->design().caption);
    DrawTextW(context, caption.c_str(), -1, &needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    ReleaseDC(handle, context);
    constexpr int kOverhang = 4;  // letters can be wider than they are said to be
    EXPECT_LE(needed.right + kOverhang, place.right) << toUtf8(control->design().name);
    EXPECT_LE(needed.bottom, place.bottom) << toUtf8(control->design().name);
  }
}

}  // namespace
}  // namespace termvik
