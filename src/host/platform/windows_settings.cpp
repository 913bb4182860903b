// The settings store: the user's part of the registry.
#include "host/platform/windows.h"
#include "host/platform/windows_api.h"
#include "host/platform/windows_text.h"
#include "host/run_time_failure.h"

namespace quorvex {

namespace {

constexpr std::wstring_view all_programs = L"Software\\VB and VBA Program Settings";

/// An open key of the registry with an owner.
class Key {
 public:
  Key() = default;
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (handle_ != nullptr) ::RegCloseKey(handle_);
  }

  LSTATUS open(const std::wstring& path) {
    return ::RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_QUERY_VALUE, &handle_);
  }
  LSTATUS make(const std::wstring& path) {
    return ::RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                             &handle_, nullptr);
  }
  HKEY handle() const { return handle_; }

 private:
  HKEY handle_ = nullptr;
};

/// Empty where a name can't stand in a path.
std::wstring Path_Of(std::string_view application, std::string_view section) {
  for (const std::string_view name : {application, section})
    if (name.empty() || name.find_first_of(std::string_view("\\\0", 2)) != name.npos) return {};
  std::wstring path(all_programs);
  return path.append(L"\\").append(Wide_Text(application)).append(L"\\").append(Wide_Text(section));
}

std::string Shown_Path(std::wstring_view path) {
  return "HKEY_CURRENT_USER\\" + Narrow_Text(path);
}

class Registry final : public Settings_Store {
 public:
  std::string place() override { return Shown_Path(all_programs) + "\\Quorvex\\Options"; }

  std::optional<std::string> problem() override {
    Key key;
    const LSTATUS status = key.open(Path_Of("Quorvex", "Options"));
    if (status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND) return std::nullopt;
    return "The registry key " + place() +
           " can't be read: " + System_Message(static_cast<DWORD>(status));
  }

  std::optional<std::string> read(std::string_view application, std::string_view section,
                                  std::string_view name) override {
    Key key;
    const std::wstring path = Path_Of(application, section);
    if (path.empty() || key.open(path) != ERROR_SUCCESS) return std::nullopt;
    const std::wstring wide_name = Wide_Text(name);
    for (DWORD bytes = 256;;) {
      std::wstring value(bytes / sizeof(wchar_t), L'\0');
      // The end of the text is made sure of, whoever wrote it.
      const LSTATUS status = ::RegGetValueW(key.handle(), nullptr, wide_name.c_str(), RRF_RT_REG_SZ,
                                            nullptr, value.data(), &bytes);
      if (status == ERROR_MORE_DATA) continue;
      if (status != ERROR_SUCCESS) return std::nullopt;
      return Narrow_Text(value.c_str());
    }
  }

  void write(std::string_view application, std::string_view section, std::string_view name,
             std::string_view value) override {
    Key key;
    const std::wstring path = Path_Of(application, section);
    LSTATUS status = path.empty() ? ERROR_INVALID_NAME : key.make(path);
    if (status == ERROR_SUCCESS) {
      const std::wstring text = Wide_Text(value);
      const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
      status = ::RegSetValueExW(key.handle(), Wide_Text(name).c_str(), 0, REG_SZ,
                                reinterpret_cast<const BYTE*>(text.c_str()), bytes);
    }
    if (status == ERROR_SUCCESS) return;
    throw Run_Time_Failure(Failure_Number::invalid_call,
                           "The registry key " + Shown_Path(path.empty() ? all_programs : path) +
                               " can't be written: " + System_Message(static_cast<DWORD>(status)));
  }
};

}  // namespace

std::shared_ptr<Settings_Store> Registry_Settings() {
  return std::make_shared<Registry>();
}

}  // namespace quorvex
