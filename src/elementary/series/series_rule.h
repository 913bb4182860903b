// What a series is made of, for those that sum up its tail.
#pragma once

#include <cstdint>

#include "arith/operation/step_number.h"
#include "text/guard_digits.h"

namespace quorvex {

/// A divisor by the counter, 1 or more, that doesn't fall as that grows; none where nothing is
/// divided.
using Divisor_Of_Counter = std::uint64_t (*)(std::uint64_t k);

/// How the terms of a series follow from each other.
struct Series_Rule {
  /// Of the counter, from each term to the next.
  std::uint64_t stride;
  /// Of the power before it, times the factor: that is the next power.
  Divisor_Of_Counter power_divisor;
  /// Of a power: that is the term which is added.
  Divisor_Of_Counter term_divisor;
  /// True where the power, and not what is added, tells the end.
  bool ends_by_power;
  bool alternates;
};

/// The place of a series where it is to be shortened.
struct Series_State {
  const Step_Number& power;
  const Step_Number& sum;
  std::uint64_t k;
};

/// A series from such a place on.
struct Series_Tail {
  const Series_Rule& rule;
  const limbs::Number& factor;  // above 0 and below 1
  Series_State state;
  double limit;  // of the steps, a whole number
  std::int64_t
      last_power;  // of ten: a term whose leading digit has it, or a lower one, is the last
  std::uint64_t last_k;
  double doubt;  // what is added to all bounds of errors, in units of the sum's last place

  /// The power of ten that turns the sum's last place into ones.
  std::int64_t shift() const {
    return static_cast<std::int64_t>(Digits_Of_Result(limit)) - 1 - state.sum.leading_power();
  }
};

}  // namespace quorvex
