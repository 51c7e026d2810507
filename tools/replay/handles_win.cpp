// SPDX-License-Identifier: MIT
#include "handles_win.h"

#include <algorithm>
#include <array>
#include <windows.h>

namespace termvik::replay {

namespace {

constexpr unsigned kNumbers = 0x10000;  // a handle's lower half

// Whatever the upper half is, as long as it is 0.
unsigned gdiObjects() {
  unsigned count = 0;
  for (unsigned long number = 1; number < kNumbers; ++number) {
    if (GetObjectType(ULongToHandle(number)) != 0) ++count;
  }
  return count;
}

template <class Make, class Close>
unsigned highestOfNew(Make make, Close close) {
  std::array<decltype(make()), 100> created{};
  unsigned highest = 0;
  for (auto& handle : created) {
    handle = make();
    highest = std::max<unsigned>(highest, LOWORD(HandleToULong(handle)));
  }
  std::for_each(created.begin(), created.end(), close);
  return highest;
}

Json asJson(unsigned gdi, unsigned user, unsigned kernel) {
  return {{"handles", {{"GDI", gdi}, {"USER", user}, {"kernel", kernel}}}};
}

}  // namespace

Json handlesJson() {
  auto* const process = GetCurrentProcess();
  DWORD kernel = 0;
  if (GetProcessHandleCount(process, &kernel) != 0 && kernel != 0) {
    return asJson(GetGuiResources(process, GR_GDIOBJECTS), GetGuiResources(process, GR_USEROBJECTS),
                  kernel);
  }
  const auto makeEvent = [] { return CreateEventW(nullptr, TRUE, FALSE, nullptr); };
  return asJson(gdiObjects(), highestOfNew(CreateMenu, DestroyMenu),
                highestOfNew(makeEvent, CloseHandle));
}

}  // namespace termvik::replay
