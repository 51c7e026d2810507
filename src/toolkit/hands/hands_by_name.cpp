// SPDX-License-Identifier: MIT
#include "toolkit/hands/hands_by_name.h"

#include "toolkit/memory/memory_hands.h"
#ifdef TERMVIK_WITH_QT
#include "toolkit/qt/qt_hands.h"
#endif
#ifdef TERMVIK_WITH_WIN32
#include "toolkit/win32/win32_hands.h"
#endif

namespace termvik {

namespace {

using Maker = std::unique_ptr<Hands> (*)(const Collation& collation, ScreenSize screen);

struct NamedMaker {
  std::string_view toolkit;
  Maker make;
};

constexpr NamedMaker kMakers[] = {
    {"memory", &makeMemoryHands},
#ifdef TERMVIK_WITH_QT
    {"qt", [](const Collation& collation, ScreenSize) { return makeQtHands(collation); }},
#endif
#ifdef TERMVIK_WITH_WIN32
    {"win32", [](const Collation& collation, ScreenSize) { return makeWin32Hands(collation); }},
#endif
};

}  // namespace

std::vector<std::string> toolkitNames() {
  std::vector<std::string> names;
  for (const NamedMaker& maker : kMakers) names.emplace_back(maker.toolkit);
  return names;
}

std::unique_ptr<Hands> makeHands(std::string_view toolkit, const Collation& collation,
                                 ScreenSize screen) {
  for (const NamedMaker& maker : kMakers) {
    if (maker.toolkit == toolkit) return maker.make(collation, screen);
  }
  return nullptr;
}

}  // namespace termvik
