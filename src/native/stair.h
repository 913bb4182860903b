// The methods that a product can be formed by, from the shortest operands to the longest. They
// answer one contract, so each can be the oracle of the others.
#pragma once

#include <cstddef>
#include <string_view>

#include "native/generic/kernels.h"

namespace quorvex::native {

/// Two operands without leading zeros, `a` not the shorter one.
struct Operands {
  std::string_view a;
  std::string_view b;
  bool is_square;
};

/// Each method writes the product as Multiply_Texts does, and returns 0 without having written
/// anything if a character is no digit or memory runs out. `out` has room for the digits of both.
std::size_t Multiply_Words(const Operands& operands, char* out) noexcept;
std::size_t Multiply_Limbs(const Operands& operands, char* out) noexcept;
std::size_t Multiply_Short(const Operands& operands, char* out, const Kernels& kernels) noexcept;
std::size_t Multiply_By_Waves(const Operands& operands, char* out, const Kernels& kernels) noexcept;
std::size_t Multiply_By_Primes(const Operands& operands, char* out,
                               const Kernels& kernels) noexcept;

/// Whether Multiply_By_Waves takes operands of these lengths.
bool Are_Wave_Lengths(std::size_t a_size, std::size_t b_size) noexcept;

/// The longest operand that Multiply_Words takes.
inline constexpr std::size_t word_digits = 18;

}  // namespace quorvex::native
