// What was found in loaded libraries.
#pragma once

#include <atomic>
#include <cstring>
#include <utility>

namespace quorvex {

/// Symbols by their library and name, which must stay where they are, as constants do. Products of
/// several threads look here at the same time, so what was found is never changed and nobody waits.
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
      if (Are_Alike(found->name, name) && Are_Alike(found->library, library)) {
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
    const char* library;
    const char* name;
    void* symbol;
    const Found* before;
  };

  // Mostly the same constant asks again, and a product of few digits would notice the comparison.
  static bool Are_Alike(const char* known, const char* asked) {
    return known == asked || std::strcmp(known, asked) == 0;
  }

  std::atomic<const Found*> last_ = nullptr;
};

}  // namespace quorvex
