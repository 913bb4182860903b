// Working memory that fails without an exception.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace quorvex::native {

/// Room for `count` numbers, on the boundary of a cache line and not initialised. `get` is null if
/// there isn't as much memory.
template <typename Number>
class Scratch {
 public:
  Scratch() noexcept = default;
  explicit Scratch(std::size_t count) noexcept : memory_(Allocate(count)) {}
  Number* get() const noexcept { return static_cast<Number*>(memory_.get()); }

 private:
  struct Release {
    void operator()(void* memory) const noexcept { std::free(memory); }
  };

  static void* Allocate(std::size_t count) noexcept {
    constexpr std::size_t line = 64;
    if (count > (~std::size_t{0} >> 1U) / sizeof(Number)) return nullptr;
    return std::aligned_alloc(line, (count * sizeof(Number) / line + 1) * line);
  }

  std::unique_ptr<void, Release> memory_;
};

}  // namespace quorvex::native
