// Libraries that stand beside this one, on POSIX systems.
#include <dlfcn.h>

#include <string>
#include <vector>

#include "host/platform/posix.h"

namespace quorvex {
namespace {

class Loaded_Libraries final : public Library_Loader {
 public:
  void* symbol(const char* library, const char* name) override {
    void* const handle = open(library);
    return handle == nullptr ? nullptr : ::dlsym(handle, name);
  }

 private:
  // A library that was found stays loaded; one that was not is looked for again.
  void* open(const char* library) {
    for (const Loaded& loaded : loaded_) {
      if (loaded.name == library) return loaded.handle;
    }
    void* const handle = ::dlopen(library, RTLD_NOW | RTLD_LOCAL);
    if (handle != nullptr) loaded_.push_back({library, handle});
    return handle;
  }

  struct Loaded {
    std::string name;
    void* handle;
  };
  std::vector<Loaded> loaded_;
};

}  // namespace

std::shared_ptr<Library_Loader> System_Libraries() {
  return std::make_shared<Loaded_Libraries>();
}

}  // namespace quorvex
