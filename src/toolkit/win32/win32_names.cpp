#include "win32_names.h"

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

constexpr DWORD kWholeControl = static_cast<DWORD>(OBJID_CLIENT);

}  // namespace

void giveSpokenName(HWND control, TextView name) {
  withNameService([&](IAccPropServices& service) {
    service.SetHwndPropStr(control, kWholeControl, CHILDID_SELF, PROPID_ACC_NAME,
                           wide(name).c_str());
  });
}

void takeSpokenName(HWND control) {
  withNameService([&](IAccPropServices& service) {
    service.ClearHwndProps(control, kWholeControl, CHILDID_SELF, &PROPID_ACC_NAME, 1);
  });
}

}  // namespace termvik
