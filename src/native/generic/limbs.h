// Limbs of eighteen digits, least first: what the portable kernels for short and middling operands
// work on.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quorvex::native {

using Limb = std::uint64_t;

inline constexpr std::size_t limb_digits = 18;
inline constexpr Limb limb_base = 1'000'000'000'000'000'000;

inline constexpr std::size_t Limbs_For(std::size_t digits) {
  return (digits + limb_digits - 1) / limb_digits;
}

/// Fills Limbs_For(count) limbs. False if a character is no digit.
bool Read_Limbs(const char* text, std::size_t count, Limb* limbs);

/// Writes a number from its first digit that is not zero, and returns how many digits there are.
/// Nothing is written behind them.
std::size_t Write_Limbs(const Limb* limbs, std::size_t count, char* out);

}  // namespace quorvex::native
