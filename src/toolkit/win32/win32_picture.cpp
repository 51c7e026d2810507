// SPDX-License-Identifier: MIT
#include "win32_picture.h"

#include <algorithm>
#include <commctrl.h>
#include <objidl.h>

// After the header that it needs.
#include <gdiplus.h>

#include "win32_resources.h"
#include "win32_text.h"

namespace termvik {

namespace {

// The logo that lies in the program; none where it is not there or cannot be read.
std::unique_ptr<Gdiplus::Image> loadLogo() {
  const HRSRC place = FindResourceW(nullptr, MAKEINTRESOURCEW(TERMVIK_LOGO), RT_RCDATA);
  if (place == nullptr) return nullptr;
  const DWORD size = SizeofResource(nullptr, place);
  const void* bytes = LockResource(LoadResource(nullptr, place));
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  if (bytes == nullptr || memory == nullptr) return nullptr;
  const auto* from = static_cast<const BYTE*>(bytes);
  std::copy(from, from + size, static_cast<BYTE*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  IStream* stream = nullptr;
  if (CreateStreamOnHGlobal(memory, TRUE, &stream) != S_OK) return nullptr;
  auto logo = std::make_unique<Gdiplus::Image>(stream);  // keeps the stream as long as it needs it
  stream->Release();
  return logo->GetLastStatus() == Gdiplus::Ok ? std::move(logo) : nullptr;
}

}  // namespace

Win32Picture::Win32Picture(Win32Window& window, const ControlDesign& design)
    : Win32Control(window, {WC_STATICW, SS_OWNERDRAW, design.flat ? 0UL : WS_EX_CLIENTEDGE},
                   design),
      logo_(loadLogo()) {}

Win32Picture::~Win32Picture() = default;

// The logo as large as its place allows, at the right.
void Win32Picture::draw(const DRAWITEMSTRUCT& item) {
  const RECT& place = item.rcItem;
  FillRect(item.hDC, &place, GetSysColorBrush(COLOR_BTNFACE));
  if (!logo_) return;
  const auto width = static_cast<float>(logo_->GetWidth());
  const auto height = static_cast<float>(logo_->GetHeight());
  const float scale = std::min(static_cast<float>(widthOf(place)) / width,
                               static_cast<float>(heightOf(place)) / height);
  Gdiplus::Graphics graphics(item.hDC);
  graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  graphics.DrawImage(logo_.get(),
                     Gdiplus::RectF(static_cast<float>(place.right) - width * scale,
                                    static_cast<float>(place.top), width * scale, height * scale));
}

}  // namespace termvik
