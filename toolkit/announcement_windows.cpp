#include <uiautomationcore.h>

#include "support/message_boxes.h"
#include "support/text_windows.h"
#include "toolkit/announcement.h"

namespace quillon {
namespace {

// In UI Automation since Windows 10 update 1709, but missing in mingw-w64's headers.
using HostProvider = HRESULT(WINAPI*)(HWND, IRawElementProviderSimple**);
using RaiseNotification = HRESULT(WINAPI*)(IRawElementProviderSimple*, int kind, int processing, BSTR text,
                                           BSTR activity);
constexpr int kOtherKind = 4;
constexpr int kAllInOrder = 2;

template <typename Function>
Function FunctionOf(HMODULE library, const char* name) {
  // NOLINTNEXTLINE: the system knows a function by its name alone
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace

void SendAnnouncement(QWidget* speaker, const QString& text) {
  static const HMODULE library = LoadLibraryExW(L"uiautomationcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (library == nullptr) return;
  static const auto hostOf = FunctionOf<HostProvider>(library, "UiaHostProviderFromHwnd");
  static const auto notify = FunctionOf<RaiseNotification>(library, "UiaRaiseNotificationEvent");
  if (hostOf == nullptr || notify == nullptr) return;

  IRawElementProviderSimple* window = nullptr;
  const auto handle = reinterpret_cast<HWND>(speaker->window()->winId());  // NOLINT: that is what the number is
  if (FAILED(hostOf(handle, &window)) || window == nullptr) return;
  const BSTR said = SysAllocString(reinterpret_cast<const wchar_t*>(text.utf16()));  // NOLINT: both are UTF-16
  const BSTR activity = SysAllocString(WideText(kApplicationTitle).c_str());
  notify(window, kOtherKind, kAllInOrder, said, activity);
  SysFreeString(activity);
  SysFreeString(said);
  window->Release();
}

}  // namespace quillon
