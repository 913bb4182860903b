// The digits that the iteration for a reciprocal arrives at, without the iteration.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// The `p` digits that `Iterated_Reciprocal` gives for a digit string `k` above 1 without leading
/// zeros, or nothing where that can't be told beforehand. The decimal point of the digits stands
/// as many places to their left as `k` has digits but one.
///
/// Let N be the length of k. The digits are floor((10^(p+N-1) - 1) / k): those of 1/k, and where
/// 1/k ends, those of a number just below it. The proof and its conditions stand with the code.
std::optional<NumberText> Quick_Reciprocal(const NumberText& k, std::int32_t p);

/// The first `count` digits of 1/k, at most three units of the last one too low and not too high,
/// of a k without zeros at either end. That of a row of nines may begin with a 0. Empty where a
/// product can't be formed.
NumberText Leading_Reciprocal(std::string_view k, std::size_t count);

/// The same from such digits that are known, of at least half so many and two more.
NumberText Refine_Reciprocal(std::string_view k, NumberText known, std::size_t count);

/// From this count of digits on the proof holds.
inline constexpr std::int32_t least_quick_precision = 8;

/// How many digits behind the first one must not all be zeros for the first to be right.
inline constexpr std::size_t Digits_Behind_First(std::size_t p) {
  return p / 4 - 1;
}

/// True if no digit that the iteration drops can reach those that it keeps.
inline constexpr bool Ends_Beyond_Doubt(std::size_t length, std::size_t p) {
  return length + 2 <= p;
}

}  // namespace quorvex
