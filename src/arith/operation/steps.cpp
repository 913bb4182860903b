#include "arith/operation/steps.h"

#include <cmath>
#include <cstdint>
#include <string_view>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/division/limb_quotient.h"
#include "arith/division/number_quotient.h"
#include "arith/division/quick_reciprocal.h"
#include "arith/division/recip_divide.h"
#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "host/run_time_failure.h"
#include "text/decimal.h"
#include "text/digit_runs.h"
#include "text/guard_digits.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

using limbs::Number;

// Limits and powers of the base beyond these are left to the operations on text, which ask for the
// memory that they need.
constexpr double highest_limit = 1'000'000;
constexpr std::int64_t highest_power = 1'000'000;

// Products write no zeros. Beyond these no text could hold them, and counts could run over.
constexpr double highest_product_limit = 1e15;
constexpr std::int64_t farthest_power = 50'000'000'000'000;

bool Is_Near(const Number& number) {
  return number.low >= -highest_power && number.top() <= highest_power;
}

std::size_t Count_Zeros_Behind(limbs::Limb limb) {
  std::size_t zeros = 0;
  for (; limb % 10 == 0; limb /= 10) ++zeros;
  return zeros;
}

// Digits without a separator, as division takes them, and how many of them stood behind it. Zeros
// before it are written out: division compares what is written, and answers at once by a 1 that has
// none, and for a dividend of the same digits and zeros.
struct Dividable {
  explicit Dividable(const Number& number) {
    Decimal decimal = limbs::Decimal_Of(number);
    digits = std::move(decimal.digits);
    if (decimal.power_of_ten > 0) {
      digits.append(static_cast<std::size_t>(decimal.power_of_ten), '0');
    } else {
      decimals = -decimal.power_of_ten;
    }
  }

  NumberText digits;
  std::int64_t decimals = 0;
};

// A divisor of two limbs may have no more digits than one: both numbers times a power of ten have
// the same quotient, with a divisor of one limb. False, and nothing done, for all others.
bool Divide_By_Shifted(Number& a, const Number& b, std::size_t digits_kept) {
  if (b.count() != 2 || a.is_zero()) return false;
  const std::size_t in_lower = limbs::digits - Count_Zeros_Behind(b.data()[0]);
  if (b.data()[1] >= limbs::Ten_To(limbs::digits - in_lower)) return false;
  // Shorter quotients aren't told by limbs.
  const std::size_t length = in_lower + limbs::Count_Digits(b.data()[1]);
  if (Digits_Behind_First(digits_kept) < length) return false;
  limbs::Limb shift = limbs::Ten_To(in_lower);
  Number factor;
  limbs::Trim({&shift, 1, 0, false}, factor);
  Number dividend;
  Number divisor;
  limbs::Multiply(a, factor, (a.count() + 1) * limbs::digits, dividend);
  limbs::Multiply(b, factor, 3 * limbs::digits, divisor);
  return limbs::Divide(dividend, divisor, digits_kept, a);
}

}  // namespace

Steps::Steps(double limit) : limit_(limit) {
  if (!(limit >= 1 && limit <= highest_product_limit) || std::trunc(limit) != limit) return;
  product_digits_ = static_cast<std::size_t>(limit);
  if (limit <= highest_limit) digits_ = product_digits_;
}

bool Steps::are_in_limbs(const Step_Number& a, const Step_Number& b) const {
  return digits_ > 0 && a.is_in_limbs() && b.is_in_limbs() && Is_Near(a.number_) &&
         Is_Near(b.number_);
}

void Steps::by_text(std::int16_t code, Step_Number& a, const Step_Number& b) const {
  a = Step_Number(Intermediate(code, a.text(), b.text(), limit_));
}

void Steps::add(Step_Number& a, const Step_Number& b) const {
  if (!are_in_limbs(a, b)) return by_text(operation::add, a, b);
  limbs::Add(a.number_, b.number_, b.number_.negative, Digits_Of_Result(digits_), a.number_);
}

void Steps::subtract(Step_Number& a, const Step_Number& b) const {
  if (!are_in_limbs(a, b)) return by_text(operation::subtract, a, b);
  limbs::Add(a.number_, b.number_, !b.number_.negative, Digits_Of_Result(digits_), a.number_);
}

void Steps::multiply(Step_Number& a, const Step_Number& b) const {
  if (product_digits_ == 0 || !a.is_in_limbs() || !b.is_in_limbs() || !Can_Multiply()) {
    return by_text(operation::multiply, a, b);
  }
  limbs::Multiply(a.number_, b.number_, Digits_Of_Result(product_digits_), a.number_);
  if (a.number_.low > farthest_power) a = Step_Number(num_token);
  if (a.is_in_limbs() && a.number_.low < -farthest_power) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "A number has too many decimals.");
  }
}

void Steps::divide(Step_Number& a, const Step_Number& b) const {
  if (!are_in_limbs(a, b) || !Can_Multiply()) return by_text(operation::divide, a, b);
  if (limbs::Divide(a.number_, b.number_, Digits_Of_Quotient(digits_), a.number_)) return;
  if (Divide_By_Shifted(a.number_, b.number_, Digits_Of_Quotient(digits_))) return;
  if (limbs::Divide_By_Many(a.number_, b.number_, Digits_Of_Quotient(digits_), a.number_)) return;
  a = With_Handler([&] { return long_quotient(a.number_, b.number_); },
                   [](const Run_Time_Failure&) { return Step_Number(value_token); });
}

// What division finds, rounded as formatting rounds it.
Step_Number Steps::long_quotient(const limbs::Number& a, const limbs::Number& b) const {
  const Dividable dividend(a);
  const Dividable divisor(b);
  Decimal quotient = Divide_Digits(dividend.digits, divisor.digits,
                                   static_cast<std::int32_t>(Digits_Of_Quotient(digits_)));
  if (quotient.digits.empty() || Has_Non_Digit(quotient.digits)) {
    return Step_Number(std::string_view(quotient.digits));
  }
  quotient.power_of_ten += divisor.decimals - dividend.decimals;
  quotient.negative = a.negative != b.negative;
  Strip_Zeros(quotient);
  Round(quotient, static_cast<double>(Digits_Of_Result(digits_)));
  return Step_Number(limbs::Number_Of(quotient));
}

}  // namespace quorvex
