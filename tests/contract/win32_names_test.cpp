// SPDX-License-Identifier: MIT
// What a screen reader calls the windows and controls: their captions, and what the program gives
// to the system's service for such names, here replaced by one that writes it down.
#include <map>
#include <string>

#include "win32_main_window.h"

// After the headers that it needs.
#include <oleacc.h>

namespace termvik {
namespace {

class NameService : public IAccPropServices, public IClassFactory {
 public:
  std::map<HWND, std::string> names;
  std::map<HWND, std::string> descriptions;

  HRESULT WINAPI SetHwndPropStr(HWND window, DWORD, DWORD, MSAAPROPID id, LPCWSTR text) override {
    (id == PROPID_ACC_NAME ? names : descriptions)[window] = toUtf8(fromWide(text));
    return S_OK;
  }
  HRESULT WINAPI ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID*, int) override {
    names.erase(window);
    descriptions.erase(window);
    return S_OK;
  }

  HRESULT WINAPI CreateInstance(IUnknown*, REFIID, void** service) override {
    *service = static_cast<IAccPropServices*>(this);
    return S_OK;
  }
  HRESULT WINAPI LockServer(BOOL) override { return S_OK; }
  HRESULT WINAPI QueryInterface(REFIID id, void** asked) override {
    *asked = id == IID_IAccPropServices ? static_cast<void*>(static_cast<IAccPropServices*>(this))
                                        : static_cast<IClassFactory*>(this);
    return S_OK;
  }
  ULONG WINAPI AddRef() override { return 1; }
  ULONG WINAPI Release() override { return 1; }

  // The program has no use for the rest.
  using Id = MSAAPROPID;
  using Server = IAccPropServer;
  static constexpr HRESULT kNone = E_NOTIMPL;
  HRESULT WINAPI SetPropValue(const BYTE*, DWORD, Id, VARIANT) override { return kNone; }
  HRESULT WINAPI SetPropServer(const BYTE*, DWORD, const Id*, int, Server*, AnnoScope) override {
    return kNone;
  }
  HRESULT WINAPI ClearProps(const BYTE*, DWORD, const Id*, int) override { return kNone; }
  HRESULT WINAPI SetHwndProp(HWND, DWORD, DWORD, Id, VARIANT) override { return kNone; }
  HRESULT WINAPI SetHwndPropServer(HWND, DWORD, DWORD, const Id*, int, Server*,
                                   AnnoScope) override {
    return kNone;
  }
  HRESULT WINAPI ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override {
    return kNone;
  }
  HRESULT WINAPI DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override {
    return kNone;
  }
  HRESULT WINAPI SetHmenuProp(HMENU, DWORD, Id, VARIANT) override { return kNone; }
  HRESULT WINAPI SetHmenuPropStr(HMENU, DWORD, Id, LPCWSTR) override { return kNone; }
  HRESULT WINAPI SetHmenuPropServer(HMENU, DWORD, const Id*, int, Server*, AnnoScope) override {
    return kNone;
  }
  HRESULT WINAPI ClearHmenuProps(HMENU, DWORD, const Id*, int) override { return kNone; }
  HRESULT WINAPI ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return kNone; }
  HRESULT WINAPI DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override {
    return kNone;
  }
};

class Win32Names : public testing::Test {
 protected:
  Win32Names() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    CoRegisterClassObject(CLSID_AccPropServices, static_cast<IClassFactory*>(&service_),
                          CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &registration_);
  }
  ~Win32Names() override {
    CoRevokeClassObject(registration_);
    CoUninitialize();
  }

  std::string nameOf(HWND window) const {
    const auto given = service_.names.find(window);
    std::wstring caption(100, L'\0');
    caption.resize(static_cast<std::size_t>(GetWindowTextW(window, caption.data(), 100)));
    std::string name = given == service_.names.end() ? toUtf8(fromWide(caption)) : given->second;
    const auto description = service_.descriptions.find(window);
    return description == service_.descriptions.end() ? name : name + ", " + description->second;
  }

  // Of what Tab and the arrow keys come to, and of its groups.
  std::string namesIn(const Window& window) const {
    std::string all = nameOf(dynamic_cast<const Win32Window&>(window).hwnd());
    for (const auto& control : window.controls()) {
      const ControlKind kind = control->design().kind;
      if (kind == ControlKind::Label || kind == ControlKind::Line) continue;
      all += "; " + nameOf(win32Widget(*control).handle());
    }
    return all;
  }

  NameService service_;
  DWORD registration_ = 0;
};

TEST_F(Win32Names, AreTheCaptionsOrGivenToTheSystemAndTakenBack) {
  const Collation collation{"sv_SE"};
  {
    const std::unique_ptr<Hands> hands = makeWin32Hands(collation);
    const std::unique_ptr<Window> window = hands->toolkit().createWindow(frmGlossaryDesign());
    EXPECT_EQ(namesIn(*window),
              "Termvik - Graphical and tools glossary; Search; Words; Article; "
              "Graphical glossary, Glossary; Tools glossary, Glossary; Both, Glossary; "
              "Termvik logo; Specify look up in list or full search; "
              "Search words in whole glossary; Look up word in list; Search again; "
              "Markera dubletter!");
    const std::unique_ptr<Window> about = hands->toolkit().createWindow(frmAboutDesign());
    EXPECT_EQ(namesIn(*about), "About Termvik; Termvik logo; OK; Disclaimer; Authors and version");
  }
  EXPECT_TRUE(service_.names.empty() && service_.descriptions.empty());
}

}  // namespace
}  // namespace termvik
