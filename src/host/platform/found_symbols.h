// What was found in loaded libraries.
#pragma once

#include <atomic>
#include <cstring>
#include <string>
#include <utility>

namespace quorvex {

/// Symbols by their library and name. Products of several threads look here at the same time, so
/// what was found is never changed and nobody waits.
class Found_Symbols {
 public:
  Found_Symbols() = default;
  Found_Symbols(const Found_Symbols&) = delete;
  Found_Symbols& operator=(const Found_Symbols&) = delete;
  ~Found_Symbols() {
    for (const Found* found = last_; found != nullptr;) delete std::exchange(found, found->before);
  }

  /// Null for one that was not found yet.
  void* find(const char* library, const char* name) const {
    for (const Found* found = last_; found != nullptr; found = found->before) {
      if (std::strcmp(found->name.c_str(), name) == 0 &&
          std::strcmp(found->library.c_str(), library) == 0) {
        return found->symbol;
      }
    }
    return nullptr;
  }

  void remember(const char* library, const char* name, void* symbol) {
    auto* const last = new Found{library, name, symbol, last_.load()};
    while (!last_.compare_exchange_weak(last->before, last)) {
    }
  }

 private:
  struct Found {
    std::string library;
    std::string name;
    void* symbol;
    const Found* before;
  };

  std::atomic<const Found*> last_ = nullptr;
};

}  // namespace quorvex
