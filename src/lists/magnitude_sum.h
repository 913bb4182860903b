// A growing sum of magnitudes, in place.
#pragma once

#include <cstddef>
#include <string>

#include "text/operand.h"

namespace quorvex {

/// The sum of decimals without signs, kept as digits with room around them.
///
/// An addition touches the digits that the addend has, and those that it carries into. As nothing
/// is ever taken away, carries don't come back to digits that they have made zeros: over any number
/// of additions they cost no more than the additions themselves.
class Magnitude_Sum {
 public:
  /// Adds. Fails with out_of_memory, the sum unchanged, where there is no room for the digits.
  void add(const Decimal_Parts& addend);

  /// The digits of the sum, until the next addition; zeros may stand around them.
  Decimal_Parts parts() const;

  std::size_t integer_digits() const { return point_ - begin_; }
  std::size_t fraction_digits() const { return end_ - point_; }

 private:
  void make_room(std::size_t integer, std::size_t fraction);

  // Zeros, but for the digits from `begin_` to `end_`. The fraction begins at `point_`, and one
  // place at least is free in front.
  std::string digits_;
  std::size_t begin_ = 0;
  std::size_t point_ = 0;
  std::size_t end_ = 0;
};

}  // namespace quorvex
