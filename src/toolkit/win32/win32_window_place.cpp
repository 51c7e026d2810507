// SPDX-License-Identifier: MIT
// Where a window and its controls stand, in twips and in pixels.
#include <algorithm>
#include <utility>

#include "win32_screen.h"
#include "win32_text.h"
#include "win32_window.h"

namespace termvik {

namespace {

constexpr UINT kOnlyPlace = SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE;
constexpr int kLeastLineHeight = 2;  // pixels: one dark, one light

bool scrolls(const ControlDesign& design) {
  return design.scrolls || design.kind == ControlKind::ListBox;
}

void bringTo(HWND hwnd, const PixelRect& place) {
  SetWindowPos(hwnd, nullptr, place.left, place.top, place.width(), place.height(), kOnlyPlace);
}

}  // namespace

// Gives the window the size at which its client area has the size of the design.
void Win32Window::giveClientSize() {
  const int width = toPixels(design().clientWidth, dpi_);
  const int height = toPixels(design().clientHeight, dpi_);
  // Twice, since a menu bar can take another number of lines at another width.
  for (int i = 0; i < 2; ++i) {
    PixelRect outer = outerPixels();
    RECT client;
    GetClientRect(hwnd_, &client);
    outer.right += width - widthOf(client);
    outer.bottom += height - heightOf(client);
    bringTo(hwnd_, outer);
  }
  place_.take(outerPixels(), true, dpi_);
}

void Win32Window::setOuterPlace(const Place& place) {
  const bool resized = place.width != Width() || place.height != Height();
  place_.set(place, placeWindow(place), State() == WindowState::Normal);
  if (resized) raiseResize();
}

// Gives the pixels at which the window stands then.
PixelRect Win32Window::placeWindow(const Place& place) {
  PixelRect outer = toPixels(place, dpi_);
  placing_ = true;
  if (IsIconic(hwnd_) != 0) {  // the place that it goes back to
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(hwnd_, &placement);
    placement.rcNormalPosition = toRect(outer);
    SetWindowPlacement(hwnd_, &placement);
  } else {
    bringTo(hwnd_, outer);
    outer = outerPixels();
  }
  placing_ = false;
  return outer;
}

PixelRect Win32Window::outerPixels() const {
  RECT outer;
  GetWindowRect(hwnd_, &outer);
  return fromRect(outer);
}

// Takes over what the user or the system has made of the window's place.
void Win32Window::readPlace() {
  if (placing_ || !open_ || IsWindowVisible(hwnd_) == 0 || IsIconic(hwnd_) != 0) return;
  const PixelSize before = place_.pixels().size();
  place_.take(outerPixels(), State() == WindowState::Normal, dpi_);
  if (place_.pixels().size() != before) raiseResize();
}

WindowState Win32Window::State() const {
  if (IsIconic(hwnd_) != 0) return WindowState::Minimised;
  const bool isMaximised = IsZoomed(hwnd_) != 0 || maximiseAtShow_;
  return isMaximised ? WindowState::Maximised : WindowState::Normal;
}

void Win32Window::maximise() {
  if (IsWindowVisible(hwnd_) != 0) {
    ShowWindow(hwnd_, SW_MAXIMIZE);
  } else {
    maximiseAtShow_ = true;  // at once it would be seen too early
  }
}

ScreenSize Win32Window::Screen() const {
  const SIZE size = screenSize(hwnd_);
  return {toTwips(size.cx, dpi_), toTwips(size.cy, dpi_)};
}

// All controls that Resize moves are moved in one step, so that nothing flickers.
void Win32Window::raiseResize() {
  const bool isInside = std::exchange(resizing_, true);
  if (Resize) Resize();
  resizing_ = isInside;
  if (!isInside) placeMoved();
}

void Win32Window::placeMoved() {
  HDWP step = BeginDeferWindowPos(static_cast<int>(moved_.size()));
  for (Control* control : std::exchange(moved_, {})) {
    const PixelRect place = pixelsOf(*control);
    step = DeferWindowPos(step, win32Widget(*control).handle(), nullptr, place.left, place.top,
                          place.width(), place.height(), kOnlyPlace);
  }
  EndDeferWindowPos(step);
}

void Win32Window::placeControl(Control& control, HWND handle) {
  if (resizing_) {
    if (std::find(moved_.begin(), moved_.end(), &control) == moved_.end()) {
      moved_.push_back(&control);
    }
  } else {
    bringTo(handle, pixelsOf(control));
  }
  // What a frame holds goes with it.
  for (const auto& other : controls()) {
    if (other->design().container != control.design().name) continue;
    placeControl(*other, win32Widget(*other).handle());
  }
}

PixelRect Win32Window::pixelsOf(const Control& shown) const {
  Place place = shown.place();
  if (!shown.design().container.empty()) {
    const Control& container = control(shown.design().container);
    place.left += container.Left();
    place.top += container.Top();
  }
  PixelRect pixels = toPixels(place, dpi_);
  if (shown.design().kind == ControlKind::Line) {
    pixels.bottom = std::max(pixels.bottom, pixels.top + kLeastLineHeight);
  }
  if (scrolls(shown.design())) keepInside(pixels);
  if (shown.design().kind == ControlKind::CheckBox) keepOffFrames(pixels);
  return pixels;
}

// The frame of a window, and a menu bar of two lines, can leave less room than the layout reckons
// with, which counts from the outer edges: what scrolls ends at the inner ones, so that its scroll
// bar and its last row are in sight.
void Win32Window::keepInside(PixelRect& pixels) const {
  RECT client;
  GetClientRect(hwnd_, &client);
  const PixelRect inside = fromRect(client);
  pixels.right = std::max(pixels.left, std::min(pixels.right, inside.right));
  pixels.bottom = std::max(pixels.top, std::min(pixels.bottom, inside.bottom));
}

// The right end of a check box is bare, and would lie over the line of a frame that begins there.
void Win32Window::keepOffFrames(PixelRect& pixels) const {
  for (const auto& control : controls()) {
    if (control->design().kind != ControlKind::Frame) continue;
    const PixelRect frame = pixelsOf(*control);
    const bool isBeside =
        pixels.left < frame.left && pixels.top < frame.bottom && frame.top < pixels.bottom;
    if (isBeside) pixels.right = std::min(pixels.right, frame.left);
  }
}

// The window has come to a screen of another resolution, or the user has changed the screen's.
void Win32Window::resolutionChanges(int dpi, const RECT& suggested) {
  dpi_ = dpi;
  const bool byProgram = std::exchange(placing_, true);
  bringTo(hwnd_, fromRect(suggested));
  placing_ = byProgram;
  icons_ = std::make_unique<Win32Icons>(hwnd_, dpi_);
  applyFonts();
  for (const auto& control : controls()) placeControl(*control, win32Widget(*control).handle());
  if (byProgram) return;                   // what the program has written stands
  const PixelRect pixels = outerPixels();  // other twips now, all of them
  place_.set(toTwips(pixels, dpi), pixels, State() == WindowState::Normal);
  raiseResize();
}

void Win32Window::applyFonts() {
  auto fonts = std::make_unique<Win32Fonts>(design(), dpi_);
  for (const auto& control : controls()) {
    const HFONT font = fonts->fontFor(control->design());
    SendMessageW(win32Widget(*control).handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  }
  fonts_ = std::move(fonts);
}

// The layout has no lower limit, and a stored size no upper one.
void Win32Window::freeOfLimits(MINMAXINFO& limits) {
  limits.ptMinTrackSize = {1, 1};
  limits.ptMaxTrackSize = {static_cast<LONG>(kMostPixels), static_cast<LONG>(kMostPixels)};
}

}  // namespace termvik
