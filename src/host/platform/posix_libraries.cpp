// Libraries that stand beside this one, on POSIX systems.
#include <dlfcn.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "host/platform/posix.h"

namespace quorvex {
namespace {

class Loaded_Libraries final : public Library_Loader {
 public:
  // A library that was found stays loaded; one that was not is looked for again.
  void* symbol(const char* library, const char* name) override {
    for (const Found& found : found_) {
      if (std::strcmp(found.name.c_str(), name) == 0 &&
          std::strcmp(found.library.c_str(), library) == 0) {
        return found.symbol;
      }
    }
    void* const handle = ::dlopen(library, RTLD_NOW | RTLD_LOCAL);
    void* const symbol = handle == nullptr ? nullptr : ::dlsym(handle, name);
    if (symbol != nullptr) found_.push_back({library, name, symbol});
    return symbol;
  }

  std::string folder() override {
    Dl_info info{};
    // Any address within this library finds it.
    if (::dladdr(reinterpret_cast<const void*>(&System_Libraries), &info) == 0) return {};
    std::error_code error;
    const auto path = std::filesystem::absolute(info.dli_fname, error);
    return error ? std::string() : path.parent_path().string();
  }

 private:
  struct Found {
    std::string library;
    std::string name;
    void* symbol;
  };
  std::vector<Found> found_;
};

}  // namespace

std::shared_ptr<Library_Loader> System_Libraries() {
  return std::make_shared<Loaded_Libraries>();
}

}  // namespace quorvex
