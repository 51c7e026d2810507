// SPDX-License-Identifier: MIT
// By a notification where the system has them (from Windows 10 1709 on), otherwise by a live
// region: a label without extent whose change readers tell of.
#include "win32_announcer.h"

#include <oleauto.h>
#include <uiautomationcore.h>

// After the header that it needs.
#include <commctrl.h>

#include "win32_text.h"

namespace termvik {

namespace {

// Sooner than anyone has begun to listen, later than the next key of fingers that hurry.
constexpr UINT kRestMilliseconds = 60;

constexpr int kOtherKind = 4;        // NotificationKind_Other
constexpr int kImportantNewest = 1;  // NotificationProcessing_ImportantMostRecent
constexpr const wchar_t* kActivity = L"Termvik";

// What older systems lack, and the compiler's libraries.
struct Automation {
  BOOL(WINAPI* clientsAreListening)() = nullptr;
  HRESULT(WINAPI* hostProvider)(HWND, IRawElementProviderSimple**) = nullptr;
  HRESULT(WINAPI* raiseNotification)(IRawElementProviderSimple*, int, int, BSTR, BSTR) = nullptr;

  Automation() {
    library_ = LoadLibraryExW(L"uiautomationcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library_ == nullptr) return;
    load(clientsAreListening, "UiaClientsAreListening");
    load(hostProvider, "UiaHostProviderFromHwnd");
    load(raiseNotification, "UiaRaiseNotificationEvent");
  }

  bool canNotify() const { return hostProvider != nullptr && raiseNotification != nullptr; }

 private:
  template <class Function>
  void load(Function& function, const char* name) const {
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library_, name)));
  }

  HMODULE library_ = nullptr;  // as long as the program
};

const Automation& automation() {
  static const Automation loaded;
  return loaded;
}

bool notify(HWND window, const std::wstring& utterance) {
  if (!automation().canNotify()) return false;
  IRawElementProviderSimple* provider = nullptr;
  if (automation().hostProvider(window, &provider) != S_OK || provider == nullptr) return false;
  const BSTR text = SysAllocString(utterance.c_str());
  const BSTR activity = SysAllocString(kActivity);
  const HRESULT raised =
      automation().raiseNotification(provider, kOtherKind, kImportantNewest, text, activity);
  SysFreeString(activity);
  SysFreeString(text);
  provider->Release();
  return raised == S_OK;
}

}  // namespace

Win32Announcer::Win32Announcer(HWND window)
    : window_(window),
      region_(CreateWindowExW(0, WC_STATICW, nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, window,
                              nullptr, GetModuleHandleW(nullptr), nullptr)) {
  SetWindowLongPtrW(region_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

bool Win32Announcer::hasListener() {
  if (IsWinEventHookInstalled(EVENT_OBJECT_LIVEREGIONCHANGED) != 0) return true;
  return automation().clientsAreListening != nullptr && automation().clientsAreListening() != 0;
}

void Win32Announcer::say(TextView utterance) {
  utterance_ = shownText(utterance);
  SetTimer(region_, 1, kRestMilliseconds, &restEnds);  // begins anew where one runs
}

void CALLBACK Win32Announcer::restEnds(HWND region, UINT, UINT_PTR timer, DWORD) {
  KillTimer(region, timer);
  reinterpret_cast<const Win32Announcer*>(GetWindowLongPtrW(region, GWLP_USERDATA))->announce();
}

void Win32Announcer::announce() const {
  if (notify(window_, utterance_)) return;
  SetWindowTextW(region_, utterance_.c_str());
  NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, region_, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace termvik
