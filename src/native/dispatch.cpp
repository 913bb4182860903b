// Which instructions this machine has, asked once.
#include <atomic>

#include "expects.h"
#include "native/generic/kernels.h"
#include "native/multiply.h"

namespace quorvex::native {
namespace {

Instructions Look_At_The_Machine() noexcept {
#if defined(QUORVEX_NATIVE_X86)
  __builtin_cpu_init();
  if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
      __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl") &&
      __builtin_cpu_supports("avx512ifma") && __builtin_cpu_supports("avx512vbmi"))
    return Instructions::avx512;
  if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) return Instructions::avx2;
#endif
  return Instructions::portable;
}

std::atomic<Instructions>& In_Use() noexcept {
  static std::atomic<Instructions> in_use = Best_Instructions();
  return in_use;
}

}  // namespace

Instructions Best_Instructions() noexcept {
  static const Instructions best = Look_At_The_Machine();
  return best;
}

Instructions Instructions_In_Use() noexcept {
  return In_Use().load(std::memory_order_relaxed);
}

void Use_Instructions(Instructions kind) noexcept {
  Expects(kind <= Best_Instructions());
  In_Use().store(kind, std::memory_order_relaxed);
}

const Kernels& Kernels_Of(Instructions kind) {
#if defined(QUORVEX_NATIVE_X86)
  if (kind == Instructions::avx512) return Avx512_Kernels();
  if (kind == Instructions::avx2) return Avx2_Kernels();
#endif
  static_cast<void>(kind);
  return Portable_Kernels();
}

}  // namespace quorvex::native
