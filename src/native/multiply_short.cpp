// Short operands by the kernel of their own that some machines have.
#include "native/generic/kernels.h"
#include "native/generic/scratch.h"
#include "native/stair.h"

namespace quorvex::native {

std::size_t Multiply_Short(const Operands& operands, char* out, const Kernels& kernels) noexcept {
  constexpr std::size_t few = 1024;
  const auto& [a, b, is_square] = operands;
  const char* const second = is_square ? nullptr : b.data();
  const std::size_t words = kernels.short_scratch(a.size(), b.size());
  if (words <= few) {
    alignas(64) std::byte scratch[few * sizeof(std::uint64_t)];
    return kernels.multiply_short(a.data(), a.size(), second, b.size(), out, scratch);
  }
  const Scratch<std::uint64_t> scratch(words);
  if (scratch.get() == nullptr) return 0;
  return kernels.multiply_short(a.data(), a.size(), second, b.size(), out, scratch.get());
}

}  // namespace quorvex::native
