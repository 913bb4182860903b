// Working memory that fails without an exception.
#pragma once

#include <cstddef>
#include <memory>

namespace quorvex::native {

/// So many bytes on the boundary of a cache line, or null. One block is kept between calls, see
/// scratch.cpp.
void* Take_Memory(std::size_t bytes) noexcept;
void Give_Memory_Back(void* memory) noexcept;

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
    void operator()(void* memory) const noexcept { Give_Memory_Back(memory); }
  };

  static void* Allocate(std::size_t count) noexcept {
    if (count > (~std::size_t{0} >> 1U) / sizeof(Number)) return nullptr;
    return Take_Memory(count * sizeof(Number));
  }

  std::unique_ptr<void, Release> memory_;
};

}  // namespace quorvex::native
