// Factorials.
#pragma once

#include <cstdint>

#include "arith/operation/step_number.h"
#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

/// The greatest numbers whose factorial and double factorial have no more than 32,767 digits.
inline constexpr double largest_factorial = 9273;
inline constexpr double largest_double_factorial = 17234;

/// The product of the whole numbers up to `num`, 1 for less than 1; every product on the way is cut
/// to the limit. "#NUM!" for a number that begins with a minus or a parenthesis and for one above
/// 9273. Fails with type_mismatch or overflow for what is no number of the host and for an option
/// that can't be read.
NumberText Fact_Function(const HostValue& num, const Format_Arguments& format);

/// The product of every other whole number down from the whole part of `num`, up to 17234;
/// otherwise as `Fact_Function`. Fails with type_mismatch too for what has no whole part, such as a
/// boolean.
NumberText FactDouble_Function(const HostValue& num, const Format_Arguments& format);

/// What `Fact_Function` gives for 0, 1, 2 and so on at the default limit, each by one product more:
/// its first products are those of the number before.
class Running_Factorial {
 public:
  /// The factorial of the number that follows.
  Step_Number next();

 private:
  std::int32_t next_ = 0;
  Step_Number product_{1};
};

}  // namespace quorvex
