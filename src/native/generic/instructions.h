// The kinds of machine instructions that the kernels are written for.
#pragma once

namespace quorvex::native {

enum class Instructions { portable, avx2, avx512 };

/// The best kind that this machine has.
Instructions Best_Instructions() noexcept;

/// The kind that products are formed with where none is asked for: the best, unless another one was
/// set.
Instructions Instructions_In_Use() noexcept;

/// Sets it for the whole process, for benchmarks and tests. This machine must have it.
void Use_Instructions(Instructions kind) noexcept;

}  // namespace quorvex::native
