// Libraries that stand beside this one, on POSIX systems.
#include <dlfcn.h>

#include <filesystem>
#include <memory>
#include <new>
#include <string>
#include <system_error>

#include "host/platform/found_symbols.h"
#include "host/platform/posix.h"

namespace quorvex {
namespace {

/// The folder of a file, absolute and without detours.
std::string Folder_Of(const std::filesystem::path& file) {
  const auto folder = file.lexically_normal().parent_path();
  // Behind a symbolic link, two dots lead elsewhere than they seem to. Other links stay: they may
  // be the names that a folder keeps while what it holds is replaced.
  std::error_code error;
  if (std::filesystem::equivalent(folder, file.parent_path(), error)) return folder.string();
  const auto resolved = std::filesystem::canonical(file.parent_path(), error);
  return error ? folder.string() : resolved.string();
}

std::string Folder_Of_This_Library() {
  Dl_info info{};
  // Any address within this library finds it.
  if (::dladdr(reinterpret_cast<const void*>(&System_Libraries), &info) == 0) return {};
  std::filesystem::path file = info.dli_fname;
  std::error_code error;
  // Only a program is known by its bare name: by the one that it was called by.
  if (!file.has_parent_path()) file = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return {};
  file = std::filesystem::absolute(file, error);
  return error ? std::string() : Folder_Of(file);
}

// Found while the library is being loaded: a relative name, as a search path may give it, holds
// only until the process enters another folder. Never destroyed, as the platform isn't.
const auto* const folder_when_loaded = new std::string(Folder_Of_This_Library());

// By its whole path first: by its plain name, the system may find another one of that name, in a
// folder that the environment names.
void* Loaded(const char* library) {
  if (!folder_when_loaded->empty()) {
    const std::string beside = *folder_when_loaded + "/" + library;
    if (void* const handle = ::dlopen(beside.c_str(), RTLD_NOW | RTLD_LOCAL)) return handle;
  }
  return ::dlopen(library, RTLD_NOW | RTLD_LOCAL);
}

// Why a library can't be loaded is told in words alone, which are the user's own. One that has no
// room must not be taken for one that isn't there: what needs no product of it goes on without.
bool Is_Room_For_A_Library() {
  constexpr std::size_t room = std::size_t{4} << 20U;
  const std::unique_ptr<char[]> block(new (std::nothrow) char[room]);
  return block != nullptr;
}

class Loaded_Libraries final : public Library_Loader {
 public:
  // A library that was found stays loaded; one that was not is looked for again.
  void* symbol(const char* library, const char* name) override {
    if (void* const known = found_.find(library, name)) return known;
    void* const handle = Loaded(library);
    if (handle == nullptr && !Is_Room_For_A_Library()) throw std::bad_alloc();
    void* const symbol = handle == nullptr ? nullptr : ::dlsym(handle, name);
    if (symbol != nullptr) found_.remember(library, name, symbol);
    return symbol;
  }

  std::string folder() override { return *folder_when_loaded; }

 private:
  Found_Symbols found_;
};

}  // namespace

std::shared_ptr<Library_Loader> System_Libraries() {
  return std::make_shared<Loaded_Libraries>();
}

}  // namespace quorvex
