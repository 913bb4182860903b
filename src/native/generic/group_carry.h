// From the coefficients of a product of balanced points to its groups of digits, two coefficients
// to a group. Follows the header of one kind of vectors, as transform.h does.
#pragma once

#include <cstddef>
#include <cstdint>

#include "native/generic/grain.h"

namespace quorvex::native {
namespace {

constexpr double Power_Of_Ten(std::size_t exponent) {
  double power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

// Takes coefficients least first, whose product is not negative, and gives groups of D digits.
//
// Coefficients are below 2^52 in size for points of seven digits, below 2^45 for shorter ones.
// Rounding to the nearest leaves each at half of the base with what is carried from the one below,
// less than 2^29 (2^32 for points of four digits), so that groups are below 2^53. What groups carry
// is less than a hundredth of a group, so that they end up within the base, of either sign: those
// below zero borrow from the next. A group is left at -1 if it was zero, and is told of by
// `is_settled`.
template <std::size_t D>
class Group_Carry {
 public:
  Lanes take(Lanes left, Lanes right) {
    left = point_.part(left);
    right = point_.part(right);
    const Lanes group = group_.part(Join_Neighbours(left, right, point_.base));
    const Lanes borrowed = If_Negative(group, Lanes::All(1));
    const Lanes digits = Add_If_Negative(group, group_.base) - From_Below(borrowed_, borrowed);
    borrowed_ = borrowed;
    unsettled_ = unsettled_ + If_Negative(digits, Lanes::All(1));
    return digits;
  }

  bool is_settled() const {
    alignas(64) double lanes[Lanes::count];
    unsettled_.store(lanes);
    for (const double lane : lanes)
      if (lane != 0) return false;
    return true;
  }

 private:
  struct Columns {
    explicit Columns(double number)
        : base(Lanes::All(number)), reciprocal(Lanes::All(1 / number)), before(Lanes::All(0)) {}

    // What a base leaves of columns, with what those below carry.
    Lanes part(Lanes column) {
      const Lanes quotient = Nearest_Of(column, reciprocal);
      const Lanes carried = From_Below(before, quotient);
      before = quotient;
      return Take_Product(quotient, base, column) + carried;
    }

    Lanes base;
    Lanes reciprocal;
    Lanes before;
  };

  Columns point_{Power_Of_Ten(D / 2)};
  Columns group_{Power_Of_Ten(D)};
  Lanes borrowed_ = Lanes::All(0);
  Lanes unsettled_ = Lanes::All(0);
};

// Borrows on where Group_Carry left groups below zero.
inline void Settle_Groups(double* groups, std::size_t count, double base) {
  double borrowed = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const double group = groups[i] - borrowed;
    borrowed = group < 0 ? 1 : 0;
    groups[i] = group + borrowed * base;
  }
}

}  // namespace
}  // namespace quorvex::native
