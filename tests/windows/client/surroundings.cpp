#include "surroundings.h"

#include <algorithm>
#include <cstring>

#include "guids.h"
#include "host/platform/windows_text.h"

namespace quorvex::windows {
namespace {

constexpr const wchar_t* settings_key = L"Software\\VB and VBA Program Settings\\Quorvex\\Options";

std::vector<UINT>& Intervals() {
  static std::vector<UINT> intervals;
  return intervals;
}

UINT_PTR WINAPI Hasty_Set_Timer(HWND window, UINT_PTR id, UINT delay, TIMERPROC call) {
  Intervals().push_back(delay);
  return ::SetTimer(window, id, std::min(delay, 10u), call);
}

// The place in the library's table of imports that holds the address of a function.
void** Import_Of(const char* name) {
  auto* const base = reinterpret_cast<std::byte*>(::GetModuleHandleW(L"Quorvex.dll"));
  const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
  const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const DWORD at =
      headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + at); from->Name != 0;
       ++from) {
    const auto* names = reinterpret_cast<ULONGLONG*>(base + from->OriginalFirstThunk);
    auto** addresses = reinterpret_cast<void**>(base + from->FirstThunk);
    for (; *names != 0; ++names, ++addresses) {
      if ((*names & IMAGE_ORDINAL_FLAG64) != 0) continue;
      const auto* const found = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + *names);
      if (std::strcmp(reinterpret_cast<const char*>(found->Name), name) == 0) return addresses;
    }
  }
  return nullptr;
}

void Set_Import(const char* name, void* function) {
  void** const place = Import_Of(name);
  if (place == nullptr) return;
  DWORD before = 0;
  ::VirtualProtect(place, sizeof(void*), PAGE_READWRITE, &before);
  *place = function;
  ::VirtualProtect(place, sizeof(void*), before, &before);
}

}  // namespace

bool Load_Library() {
  Com_Pointer<IClassFactory> factory;
  ::CoGetClassObject(class_guid, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                     factory.put_void());
  return static_cast<bool>(factory);
}

HRESULT Can_Unload(HRESULT wanted) {
  HMODULE const module = ::GetModuleHandleW(L"Quorvex.dll");
  if (module == nullptr) return S_OK;
  const auto ask = reinterpret_cast<HRESULT(WINAPI*)()>(
      reinterpret_cast<void*>(::GetProcAddress(module, "DllCanUnloadNow")));
  HRESULT said = ask();
  Pump([&] { return (said = ask()) == wanted; }, 2000);
  return said;
}

Hasty_Timers::Hasty_Timers() {
  Intervals().clear();
  Set_Import("SetTimer", reinterpret_cast<void*>(&Hasty_Set_Timer));
}

Hasty_Timers::~Hasty_Timers() {
  Set_Import("SetTimer", reinterpret_cast<void*>(&::SetTimer));
}

const std::vector<UINT>& Hasty_Timers::intervals() const {
  return Intervals();
}

Stored_Limit::Stored_Limit() : before_(text()) {}

Stored_Limit::~Stored_Limit() {
  set(before_);
}

std::optional<std::string> Stored_Limit::text() const {
  wchar_t buffer[64];
  DWORD size = sizeof buffer;
  const LSTATUS status = ::RegGetValueW(HKEY_CURRENT_USER, settings_key, L"MaxSD", RRF_RT_REG_SZ,
                                        nullptr, buffer, &size);
  if (status != ERROR_SUCCESS) return std::nullopt;
  return Narrow_Text(buffer);
}

void Stored_Limit::set(const std::optional<std::string>& text) const {
  if (!text) {
    ::RegDeleteKeyValueW(HKEY_CURRENT_USER, settings_key, L"MaxSD");
    return;
  }
  const std::wstring wide = Wide_Text(*text);
  ::RegSetKeyValueW(HKEY_CURRENT_USER, settings_key, L"MaxSD", REG_SZ, wide.c_str(),
                    static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
}

}  // namespace quorvex::windows
