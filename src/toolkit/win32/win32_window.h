// SPDX-License-Identifier: MIT
// A window of the program as a window of Windows.
#pragma once

#include <memory>
#include <optional>
#include <vector>
#include <windows.h>

#include "common/toolkit/toolkit.h"
#include "toolkit/shared/known_place.h"
#include "win32_announcer.h"
#include "win32_controls.h"
#include "win32_fonts.h"
#include "win32_icons.h"

namespace termvik {

class Win32Toolkit;

class Win32Window : public Window {
 public:
  // Once for the program, before the first window.
  static void registerClass();

  Win32Window(Win32Toolkit& toolkit, const Collation& collation, const WindowDesign& design);
  ~Win32Window() override;

  Place outerPlace() const override { return place_.outer(); }
  void setOuterPlace(const Place& place) override;
  WindowState State() const override;
  void maximise() override;
  ScreenSize Screen() const override;
  void Show() override;
  void ShowModal() override;
  void Unload() override;

  HWND hwnd() const { return hwnd_; }
  Win32Toolkit& toolkit() const { return toolkit_; }
  UINT menuId(const MenuItem& item) const;  // as WM_COMMAND gives it

  // For the controls, which are made one after the other: what the window says of the style and the
  // number of the next one.
  DWORD commonStyle(const ControlDesign& design) const;
  HMENU nextId() const;

  // Brings what shows a control to the control's place, at the end of Resize if one is being
  // raised.
  void placeControl(Control& control, HWND handle);

  // Tab reaches the option that is on, or the first of its group when none is.
  bool isTabStop(const OptionButton& option) const;

 protected:
  bool hasListener() const override { return Win32Announcer::hasListener(); }
  void speak(TextView utterance, TextView news) override;

 private:
  static LRESULT CALLBACK procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

  // win32_window.cpp
  void createWindow();
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> handleControls(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> handleUser(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> handlePlace(UINT message, WPARAM wParam, LPARAM lParam);
  void command(WPARAM wParam, LPARAM lParam);
  HWND defaultButton() const;
  void userReleasesAt(POINT position) const;
  bool isBareAt(POINT position) const;
  void userLeaves();
  void focusControl() const;
  void paintBorder() const;
  void userCloses();

  // win32_window_parts.cpp
  HMENU makeMenu();
  void addControls(const Collation& collation);
  std::unique_ptr<Control> makeControl(const ControlDesign& design, const Collation& collation);
  void putDecorationsBehind() const;
  MenuItem* menuItemOf(UINT id) const;
  Control* controlOf(HWND child) const;
  Control* controlWith(bool ControlDesign::*role) const;

  // win32_window_place.cpp
  void giveClientSize();
  PixelRect placeWindow(const Place& place);
  PixelRect outerPixels() const;
  void readPlace();
  void raiseResize();
  void resolutionChanges(int dpi, const RECT& suggested);
  void applyFonts();
  PixelRect pixelsOf(const Control& control) const;
  void keepInside(PixelRect& pixels) const;
  void keepOffFrames(PixelRect& pixels) const;
  void placeMoved();
  static void freeOfLimits(MINMAXINFO& limits);

  Win32Toolkit& toolkit_;
  HWND hwnd_ = nullptr;
  int dpi_ = 0;
  std::unique_ptr<Win32Fonts> fonts_;
  std::unique_ptr<Win32Icons> icons_;
  std::unique_ptr<Win32Announcer> announcer_;  // made when there is something to say
  std::vector<MenuItem*> menuItems_;           // in the order of the menu bar
  HWND lastFocus_ = nullptr;                   // when the window was last active
  std::vector<HWND> barred_;                   // windows that take no input while this one is modal

  KnownPlace place_;
  bool maximiseAtShow_ = false;
  bool placing_ = false;  // the program places the window, not the user
  bool open_ = true;

  bool resizing_ = false;        // Resize is being raised
  std::vector<Control*> moved_;  // meanwhile
};

}  // namespace termvik
