#include "registration.h"

#include <string>
#include <string_view>

#include "guids.h"
#include "host/platform/windows_text.h"
#include "module.h"
#include "type_library.h"

namespace quorvex::windows {
namespace {

std::wstring Braced(std::string_view id) {
  std::wstring text = L"{" + Wide_Text(id) + L"}";
  for (wchar_t& letter : text) letter = letter >= L'a' && letter <= L'f' ? letter - 32 : letter;
  return text;
}

const std::wstring& Class_Key() {
  static const std::wstring key = L"CLSID\\" + Braced(class_id);
  return key;
}

// Collects the first failure of several steps.
class Steps {
 public:
  void take(LSTATUS status) {
    if (status_ == S_OK && status != ERROR_SUCCESS)
      status_ = HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
  }
  void take_result(HRESULT status) {
    if (status_ == S_OK && FAILED(status)) status_ = status;
  }
  /// A text under a key; an empty name is the key's own.
  void set(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
    HKEY opened = nullptr;
    const LSTATUS status = ::RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0,
                                             KEY_WRITE, nullptr, &opened, nullptr);
    take(status);
    if (status != ERROR_SUCCESS) return;
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    take(::RegSetValueExW(opened, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                          size));
    ::RegCloseKey(opened);
  }
  void remove(const std::wstring& key) {
    const LSTATUS status = ::RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
    if (status != ERROR_FILE_NOT_FOUND) take(status);
  }
  HRESULT status() const { return status_; }

 private:
  HRESULT status_ = S_OK;
};

}  // namespace

HRESULT Register_Class() {
  Steps steps;
  const std::wstring title = Wide_Text(class_title);
  const std::wstring general = Wide_Text(prog_id);
  const std::wstring versioned = Wide_Text(versioned_prog_id);
  const std::wstring version =
      std::to_wstring(major_version) + L"." + std::to_wstring(minor_version);
  steps.set(Class_Key(), nullptr, title);
  steps.set(Class_Key() + L"\\InprocServer32", nullptr, Module_File());
  steps.set(Class_Key() + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  steps.set(Class_Key() + L"\\ProgID", nullptr, versioned);
  steps.set(Class_Key() + L"\\VersionIndependentProgID", nullptr, general);
  steps.set(Class_Key() + L"\\TypeLib", nullptr, Braced(library_id));
  steps.set(Class_Key() + L"\\Version", nullptr, version);
  // What makes a spreadsheet list the class among the add-ins that it can use.
  steps.set(Class_Key() + L"\\Programmable", nullptr, L"");
  steps.set(general, nullptr, title);
  steps.set(general + L"\\CLSID", nullptr, Braced(class_id));
  steps.set(general + L"\\CurVer", nullptr, versioned);
  steps.set(versioned, nullptr, title);
  steps.set(versioned + L"\\CLSID", nullptr, Braced(class_id));
  steps.take_result(Register_Type_Library());
  return steps.status();
}

HRESULT Unregister_Class() {
  Steps steps;
  steps.remove(Class_Key());
  steps.remove(Wide_Text(prog_id));
  steps.remove(Wide_Text(versioned_prog_id));
  if (FAILED(Unregister_Type_Library())) {
    steps.remove(L"TypeLib\\" + Braced(library_id));
    steps.remove(L"Interface\\" + Braced(interface_id));
  }
  return steps.status();
}

}  // namespace quorvex::windows
