// SPDX-License-Identifier: MIT
// Controls that are one window of Windows each; those without behaviour of their own stand here.
#pragma once

#include <memory>
#include <utility>
#include <windows.h>

#include "common/toolkit/toolkit.h"

namespace termvik {

class Win32Window;

// What shows a control: a child window, whose messages come here first.
class Win32Widget {
 public:
  struct Look {
    const wchar_t* className;
    DWORD style = 0;  // beside what all controls have
    DWORD extendedStyle = 0;
  };

  Win32Widget(Win32Window& window, const ControlDesign& design, const Look& look);
  virtual ~Win32Widget() = default;
  Win32Widget(const Win32Widget&) = delete;
  Win32Widget& operator=(const Win32Widget&) = delete;

  HWND handle() const { return handle_; }

  // What the control reports to the window that it lies in: WM_COMMAND, WM_NOTIFY, WM_DRAWITEM.
  virtual void reports(WORD /*code*/) {}
  virtual LRESULT reports(NMHDR& /*header*/) { return 0; }
  virtual void draw(const DRAWITEMSTRUCT& /*item*/) {}

 protected:
  virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT passOn(UINT message, WPARAM wParam, LPARAM lParam) const;  // to the control's own kind
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  void showAt(Control& control) const;
  Win32Window& window() const { return window_; }

 private:
  static LRESULT CALLBACK procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

  Win32Window& window_;
  HWND handle_;
  WNDPROC kind_;  // handles what all controls of the kind do
};

inline Win32Widget& win32Widget(Control& control) { return dynamic_cast<Win32Widget&>(control); }

template <class Base>
class Win32Control : public Base, public Win32Widget {
 public:
  template <class... Arguments>
  Win32Control(Win32Window& window, const Look& look, const ControlDesign& design,
               Arguments&&... arguments)
      : Base(design, std::forward<Arguments>(arguments)...), Win32Widget(window, design, look) {
    Win32Control::showPlace();
  }

 protected:
  void showPlace() override { showAt(*this); }
};

class Win32OptionButton : public Win32Control<OptionButton> {
 public:
  Win32OptionButton(Win32Window& window, const ControlDesign& design, OptionGroup& group);

  void reports(WORD code) override;

  void showValue() override;
};

class Win32CheckBox : public Win32Control<CheckBox> {
 public:
  Win32CheckBox(Win32Window& window, const ControlDesign& design);

  void reports(WORD code) override;
};

class Win32CommandButton : public Win32Control<CommandButton> {
 public:
  Win32CommandButton(Win32Window& window, const ControlDesign& design);

  void reports(WORD code) override;

 protected:
  void showEnabled() override;
};

// Labels, frames and lines.
std::unique_ptr<Control> makeWin32Decoration(Win32Window& window, const ControlDesign& design);

// The style of a text aligned as `alignment` says; SS_... and ES_... agree on it.
DWORD alignmentStyle(Alignment alignment);

// Chooses the colours that a text box or label has by its design; gives the background's brush.
HBRUSH chooseColours(HDC context, const ControlDesign& design);

}  // namespace termvik
