// Where a window and its controls stand, in twips and in pixels.
#include <algorithm>
#include <utility>

#include "toolkit/win32/win32_screen.h"
#include "toolkit/win32/win32_text.h"
#include "toolkit/win32/win32_window.h"

namespace termvik {

namespace {

constexpr UINT kOnlyPlace = SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE;
constexpr int kLeastLineHeight = 2;  // pixels: one dark, one light

bool scrolls(const ControlDesign& design) {
  return design.scrolls || design.kind == ControlKind::ListBox;
}

void bringTo(HWND hwnd, const RECT& place) {
  SetWindowPos(hwnd, nullptr, place.left, place.top, widthOf(place), heightOf(place), kOnlyPlace);
}

}  // namespace

// Gives the window the size at which its client area has the size of the design.
void Win32Window::giveClientSize() {
  const int width = toPixels(design().clientWidth, dpi_);
  const int height = toPixels(design().clientHeight, dpi_);
  // Twice, since a menu bar can take another number of lines at another width.
  for (int i = 0; i < 2; ++i) {
    RECT outer = outerPixels();
    RECT client;
    GetClientRect(hwnd_, &client);
    outer.right += width - widthOf(client);
    outer.bottom += height - heightOf(client);
    bringTo(hwnd_, outer);
  }
  takePlace(outerPixels());
}

void Win32Window::setOuterPlace(const Place& place) {
  const bool resized = place.width != now_.outer.width || place.height != now_.outer.height;
  now_.outer = place;
  placeWindow();
  if (State() == WindowState::Normal) normal_ = now_;
  if (resized) raiseResize();
}

void Win32Window::placeWindow() {
  const RECT outer = toPixels(now_.outer, dpi_);
  placing_ = true;
  if (IsIconic(hwnd_) != 0) {  // the place that it goes back to
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(hwnd_, &placement);
    placement.rcNormalPosition = outer;
    SetWindowPlacement(hwnd_, &placement);
    now_.pixels = outer;
  } else {
    bringTo(hwnd_, outer);
    now_.pixels = outerPixels();
  }
  placing_ = false;
}

RECT Win32Window::outerPixels() const {
  RECT outer;
  GetWindowRect(hwnd_, &outer);
  return outer;
}

// Takes over what the user or the system has made of the window's place.
void Win32Window::readPlace() {
  if (placing_ || !open_ || IsWindowVisible(hwnd_) == 0 || IsIconic(hwnd_) != 0) return;
  const RECT now = outerPixels();
  const RECT before = now_.pixels;
  const bool isNormal = State() == WindowState::Normal;
  if (isNormal && EqualRect(&now, &normal_.pixels) != 0) {
    now_ = normal_;  // back from another state, or not moved at all
  } else {
    takePlace(now);
  }
  if (widthOf(now) != widthOf(before) || heightOf(now) != heightOf(before)) raiseResize();
}

// Each measure by itself: what has not changed keeps the fraction that the program gave it.
void Win32Window::takePlace(const RECT& pixels) {
  const RECT before = std::exchange(now_.pixels, pixels);
  const auto take = [this](float& measure, long now, long then) {
    if (now != then) measure = toTwips(now, dpi_);
  };
  take(now_.outer.left, pixels.left, before.left);
  take(now_.outer.top, pixels.top, before.top);
  take(now_.outer.width, widthOf(pixels), widthOf(before));
  take(now_.outer.height, heightOf(pixels), heightOf(before));
  if (State() == WindowState::Normal) normal_ = now_;
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
    const RECT place = pixelsOf(*control);
    step = DeferWindowPos(step, win32Shown(*control).shown(), nullptr, place.left, place.top,
                          widthOf(place), heightOf(place), kOnlyPlace);
  }
  EndDeferWindowPos(step);
}

void Win32Window::placeControl(Control& control, HWND shown) {
  if (resizing_) {
    if (std::find(moved_.begin(), moved_.end(), &control) == moved_.end()) {
      moved_.push_back(&control);
    }
  } else {
    bringTo(shown, pixelsOf(control));
  }
  // What a frame holds goes with it.
  for (const auto& other : controls()) {
    if (other->design().container != control.design().name) continue;
    placeControl(*other, win32Shown(*other).shown());
  }
}

RECT Win32Window::pixelsOf(const Control& shown) const {
  Place place = shown.place();
  if (!shown.design().container.empty()) {
    const Control& container = control(shown.design().container);
    place.left += container.Left();
    place.top += container.Top();
  }
  RECT pixels = toPixels(place, dpi_);
  if (shown.design().kind == ControlKind::Line) {
    pixels.bottom = std::max(pixels.bottom, pixels.top + kLeastLineHeight);
  }
  if (scrolls(shown.design())) keepInside(pixels);
  return pixels;
}

// The frame of a window, and a menu bar of two lines, can leave less room than the layout reckons
// with, which counts from the outer edges: what scrolls ends at the inner ones, so that its scroll
// bar and its last row are in sight.
void Win32Window::keepInside(RECT& pixels) const {
  RECT client;
  GetClientRect(hwnd_, &client);
  pixels.right = std::max(pixels.left, std::min(pixels.right, client.right));
  pixels.bottom = std::max(pixels.top, std::min(pixels.bottom, client.bottom));
}

// The window has come to a screen of another resolution, or the user has changed the screen's.
void Win32Window::resolutionChanges(int dpi, const RECT& suggested) {
  dpi_ = dpi;
  const bool byProgram = std::exchange(placing_, true);
  bringTo(hwnd_, suggested);
  placing_ = byProgram;
  applyFonts();
  for (const auto& control : controls()) placeControl(*control, win32Shown(*control).shown());
  if (byProgram) return;              // what the program has written stands
  const RECT pixels = outerPixels();  // other twips now, all of them
  now_ = {{toTwips(pixels.left, dpi), toTwips(pixels.top, dpi), toTwips(widthOf(pixels), dpi),
           toTwips(heightOf(pixels), dpi)},
          pixels};
  if (State() == WindowState::Normal) normal_ = now_;
  raiseResize();
}

void Win32Window::applyFonts() {
  auto fonts = std::make_unique<Win32Fonts>(design(), dpi_);
  for (const auto& control : controls()) {
    const HFONT font = fonts->fontFor(control->design());
    SendMessageW(win32Shown(*control).shown(), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  }
  fonts_ = std::move(fonts);
}

// The layout has no lower limit, and a stored size no upper one.
void Win32Window::freeOfLimits(MINMAXINFO& limits) {
  limits.ptMinTrackSize = {1, 1};
  limits.ptMaxTrackSize = {static_cast<LONG>(kMostPixels), static_cast<LONG>(kMostPixels)};
}

}  // namespace termvik
