// Allocations that fail when a test says so.
#pragma once

#include <cstddef>

namespace quorvex {

/// Which allocations of a scope fail: the one of that number, counted from 1, and perhaps all that
/// come after it. 0 for none.
struct Shortage {
  std::size_t first = 0;
  bool lasts = false;
};

/// While it lives, the allocations of its thread are counted, and fail as it was told. It takes no
/// memory itself, and only one may live at a time.
class Failing_Memory {
 public:
  explicit Failing_Memory(Shortage shortage = {}) noexcept;
  ~Failing_Memory();
  Failing_Memory(const Failing_Memory&) = delete;
  Failing_Memory& operator=(const Failing_Memory&) = delete;

  /// How many allocations were asked for.
  std::size_t count() const noexcept;
};

/// Blocks of `operator new` that have not been given back yet, in the whole process, and their
/// bytes.
long Blocks_In_Use() noexcept;
long Bytes_In_Use() noexcept;

/// The most bytes that were in use at a time since the last call of `Forget_Most_Bytes`.
long Most_Bytes_In_Use() noexcept;
void Forget_Most_Bytes() noexcept;

}  // namespace quorvex
