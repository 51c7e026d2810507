// SPDX-License-Identifier: MIT
#include "win32_names.h"

#include <array>
#include <objbase.h>

// After the header that it needs. Its GUIDs lie in a library.
#include <oleacc.h>

#include "win32_text.h"

namespace termvik {

namespace {

// Calls `act` with the service that keeps such names; where there is none the names are not kept.
template <class Act>
void withNameService(Act act) {
  IAccPropServices* service = nullptr;
  const HRESULT made = CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                        IID_IAccPropServices, reinterpret_cast<void**>(&service));
  if (made != S_OK) return;
  act(*service);
  service->Release();
}

constexpr DWORD kWhole = static_cast<DWORD>(OBJID_CLIENT);

}  // namespace

void giveSpokenNames(HWND window, TextView name, TextView group) {
  if (name.empty() && group.empty()) return;
  withNameService([&](IAccPropServices& service) {
    const auto give = [&](const MSAAPROPID& property, TextView text) {
      if (text.empty()) return;
      service.SetHwndPropStr(window, kWhole, CHILDID_SELF, property, wide(text).c_str());
    };
    give(PROPID_ACC_NAME, name);
    give(PROPID_ACC_DESCRIPTION, group);
  });
}

void takeSpokenNames(HWND window) {
  withNameService([&](IAccPropServices& service) {
    const std::array properties = {PROPID_ACC_NAME, PROPID_ACC_DESCRIPTION};
    service.ClearHwndProps(window, kWhole, CHILDID_SELF, properties.data(),
                           static_cast<int>(properties.size()));
  });
}

}  // namespace termvik
