// The kinds of machine instructions that the kernels are written for.
#pragma once

namespace quorvex::native {

enum class Instructions { portable, avx2, avx512 };

/// The best kind that this machine has.
Instructions Best_Instructions() noexcept;

}  // namespace quorvex::native
