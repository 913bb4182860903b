// A growing sum of magnitudes, in place.
#pragma once

#include <cstddef>
#include <string>

#include "text/operand.h"

namespace quorvex {

/// The sum of decimals without signs, kept as digits with room around them.
///
/// An addition touches the digits that the addend has. Short addends are added byte by byte, with
/// nothing carried, and carries are settled once for many of them. As nothing is ever taken away,
/// carries don't come back to digits that they have made zeros: over any number of additions they
/// cost no more than the additions themselves.
class Magnitude_Sum {
 public:
  /// Adds. Fails with out_of_memory, the sum unchanged, where there is no room for the digits.
  void add(const Decimal_Parts& addend);

  /// The digits of the sum, until the next addition; zeros may stand around them.
  Decimal_Parts parts();

  /// A bound for the digits left of the point, and the digits right of it.
  std::size_t integer_digits() const { return point_ - begin_ + unsettled_digits; }
  std::size_t fraction_digits() const { return end_ - point_; }

 private:
  // What a hundred addends may add to the left of the longest one.
  static constexpr std::size_t unsettled_digits = 2;

  void make_room(std::size_t integer, std::size_t fraction);
  void add_long(const Decimal_Parts& addend);
  void settle();

  // Zeros, but for the digits from `begin_` to `end_`. The fraction begins at `point_`.
  std::string digits_;
  std::size_t begin_ = 0;
  std::size_t point_ = 0;
  std::size_t end_ = 0;

  // Where bytes may stand for more than a digit, and after how many additions.
  std::size_t unsettled_begin_ = 0;
  std::size_t unsettled_end_ = 0;
  unsigned unsettled_ = 0;
};

}  // namespace quorvex
