// Libraries that stand beside this one, on Windows.
#include <atomic>
#include <cstring>
#include <filesystem>
#include <string>
#include <utility>

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
  Loaded_Libraries() = default;
  Loaded_Libraries(const Loaded_Libraries&) = delete;
  Loaded_Libraries& operator=(const Loaded_Libraries&) = delete;
  ~Loaded_Libraries() override {
    for (const Found* found = last_; found != nullptr;) delete std::exchange(found, found->before);
  }

  // A library that was found stays loaded; one that was not is looked for again.
  void* symbol(const char* library, const char* name) override {
    for (const Found* found = last_; found != nullptr; found = found->before) {
      if (std::strcmp(found->name.c_str(), name) == 0 &&
          std::strcmp(found->library.c_str(), library) == 0) {
        return found->symbol;
      }
    }
    HMODULE const handle = Loaded(library);
    if (handle == nullptr) return nullptr;
    void* const symbol = reinterpret_cast<void*>(::GetProcAddress(handle, name));
    if (symbol == nullptr) {
      ::FreeLibrary(handle);
    } else {
      remember({library, name, symbol});
    }
    return symbol;
  }

  std::string folder() override { return Narrow_Text(Folder_Of_This_Library().wstring()); }

 private:
  struct Found {
    std::string library;
    std::string name;
    void* symbol;
    const Found* before = nullptr;
  };

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

  // Products of several threads come here at the same time, so what was found is never changed.
  void remember(Found found) {
    auto* const last = new Found(std::move(found));
    last->before = last_.load();
    while (!last_.compare_exchange_weak(last->before, last)) {
    }
  }

  std::atomic<const Found*> last_ = nullptr;
};

}  // namespace

std::shared_ptr<Library_Loader> System_Libraries() {
  return std::make_shared<Loaded_Libraries>();
}

}  // namespace quorvex
