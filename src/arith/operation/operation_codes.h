// The operations on two operands, as callers name them.
#pragma once

#include <cstdint>

/// Operation codes.
namespace quorvex::operation {

inline constexpr std::int16_t add = 1;
inline constexpr std::int16_t subtract = 2;
inline constexpr std::int16_t multiply = 3;
inline constexpr std::int16_t divide = 4;
inline constexpr std::int16_t root = 5;
inline constexpr std::int16_t power = 6;

}  // namespace quorvex::operation
