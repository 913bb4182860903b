#include "elementary/series/tail_ends.h"

#include <cstddef>
#include <limits>
#include <utility>

#include "text/guard_digits.h"

namespace quorvex {

using limbs::Number;

Number Scaled(const Number& number, std::int64_t shift) {
  constexpr auto limb_digits = static_cast<std::int64_t>(limbs::digits);
  constexpr auto all_digits = static_cast<std::size_t>(std::numeric_limits<std::int64_t>::max());
  std::int64_t beyond = shift % limb_digits;
  if (beyond < 0) beyond += limb_digits;
  limbs::Limb power = limbs::Ten_To(static_cast<std::size_t>(beyond));
  Number scaled;
  limbs::Trim({&power, 1, (shift - beyond) / limb_digits, false}, scaled);
  limbs::Multiply(number, scaled, all_digits, scaled);
  return scaled;
}

Step_Number With_Rest(const Series_Tail& tail, const Number& rest) {
  const Number scaled = Scaled(rest, -tail.shift());
  const bool is_negative = tail.state.power.is_negative() != tail.rule.alternates;
  Number sum;
  limbs::Add(tail.state.sum.in_limbs(), scaled, is_negative,
             static_cast<std::size_t>(Digits_Of_Result(tail.limit)), sum);
  return Step_Number(std::move(sum));
}

}  // namespace quorvex
