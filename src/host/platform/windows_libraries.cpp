// Libraries that stand beside this one, on Windows.
#include <filesystem>
#include <string>

#include "host/platform/found_symbols.h"
#include "host/platform/windows.h"
#include "host/platform/windows_api.h"
#include "host/platform/windows_text.h"

namespace quorvex {
namespace {

/// The path of the library, or of the program where the engine is a part of that.
std::wstring File_Of_This_Library() {
  HMODULE self = nullptr;
  // Any address within this library finds it.
  const DWORD flags =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (::GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&System_Libraries), &self) == 0)
    return {};
  for (std::size_t size = MAX_PATH;; size *= 2) {
    std::wstring file(size, L'\0');
    const DWORD used = ::GetModuleFileNameW(self, file.data(), static_cast<DWORD>(size));
    if (used == 0) return {};
    if (used == size) continue;  // cut off
    file.resize(used);
    return file;
  }
}

std::filesystem::path Folder_Of_This_Library() {
  return std::filesystem::path(File_Of_This_Library()).lexically_normal().parent_path();
}

/// Where a library can't be loaded, the system shows no box of its own, as long as this lives.
class Quiet {
 public:
  Quiet() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before_); }
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  ~Quiet() { ::SetThreadErrorMode(before_, nullptr); }

 private:
  DWORD before_ = 0;
};

class Loaded_Libraries final : public Library_Loader {
 public:
  // A library that was found stays loaded; one that was not is looked for again.
  void* symbol(const char* library, const char* name) override {
    if (void* const known = found_.find(library, name)) return known;
    HMODULE const handle = Loaded(library);
    if (handle == nullptr) return nullptr;
    void* const symbol = reinterpret_cast<void*>(::GetProcAddress(handle, name));
    if (symbol == nullptr) {
      ::FreeLibrary(handle);
    } else {
      found_.remember(library, name, symbol);
    }
    return symbol;
  }

  std::string folder() override { return Narrow_Text(Folder_Of_This_Library().wstring()); }

 private:
  // The system looks beside the program and not beside the library that asks. By the whole path,
  // what the other one needs is looked for beside it as well.
  static HMODULE Loaded(const char* library) {
    const Quiet quiet;
    const std::wstring name = Wide_Text(library);
    const std::filesystem::path folder = Folder_Of_This_Library();
    if (!folder.empty()) {
      HMODULE const beside =
          ::LoadLibraryExW((folder / name).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
      if (beside != nullptr) return beside;
    }
    return ::LoadLibraryW(name.c_str());
  }

  Found_Symbols found_;
};

}  // namespace

std::shared_ptr<Library_Loader> System_Libraries() {
  return std::make_shared<Loaded_Libraries>();
}

}  // namespace quorvex
