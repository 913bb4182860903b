#include "arith/powers/power_function.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "arith/fractions/reduce_fraction.h"
#include "arith/operation/four_operations.h"
#include "arith/powers/power_chain.h"
#include "arith/powers/root_function.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/clean_up_number.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/guard_digits.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The root of the fraction's divisor, raised to its numerator.
Decimal Fractional_Power(const Decimal& base, const NumberText& exponent, double limit) {
  const Steps steps(limit);
  const bool is_reciprocal = exponent.starts_with('-');
  const std::string_view magnitude = std::string_view(exponent).substr(is_reciprocal ? 1 : 0);
  const std::size_t place = magnitude.find(Decimal_Separator());
  const std::string_view integer = magnitude.substr(0, place);
  const std::string_view decimals = magnitude.substr(place + Decimal_Separator().size());
  NumberText numerator = integer == "0" ? "" : NumberText(integer);
  numerator += decimals;
  const type_Fraction fraction =
      Reduce_Fraction(numerator, "1" + NumberText(decimals.size(), '0'), {});
  const Step_Number number(base);
  const Step_Number root_of = is_reciprocal ? steps.quotient(Step_Number(1), number) : number;
  const Step_Number root = Root(root_of, Step_Number(fraction.divisor), steps);
  return Power(root, Step_Number(fraction.Numerator), steps).decimal();
}

// Text has room for so many integer digits, and formatting would refuse more.
bool Is_Too_Long(const Decimal& number) {
  return number.power_of_ten > 0 &&
         static_cast<double>(number.digits.size()) + static_cast<double>(number.power_of_ten) >=
             maximum_digits;
}

// The power of a number in normal form.
Decimal Raise(Decimal base, const NumberText& exponent, double maxSD, double working_digits) {
  if (exponent == "0") return {"1"};
  if (base.digits == "0") return base;
  const bool is_one = base.digits == "1" && base.power_of_ten == 0 && !base.negative;
  if (is_one || exponent == "1") return base;
  if (Has_Fraction(exponent)) {
    return base.negative ? Decimal_Token(num_token)
                         : Fractional_Power(base, exponent, working_digits + maxSD);
  }
  Decimal power = Whole_Power(base, exponent, maxSD, working_digits);
  return Is_Too_Long(power) ? Decimal_Token(num_token) : power;
}

// What a step gives: a number for the next one, or digits that are formatted next.
struct As_Step_Number {
  static Step_Number of(const Decimal& number) { return Step_Number(number); }
  static Step_Number of_text(std::string_view text) { return Step_Number(text); }
};

struct As_Decimal {
  static Decimal of(Decimal& number) { return std::move(number); }
  static Decimal of_text(std::string_view text) { return Read_Decimal(Step_Number(text)); }
};

// An operation between two steps: what `Intermediate` is to texts. Digits are rounded as formatting
// rounds them, and no text is formed.
template <typename Result, typename Operation>
auto Take_Step(const Step_Number& a, const Step_Number& b, double limit,
               const Operation& operation) {
  return With_Handler(
      [&] {
        if (a.is_token() || b.is_token()) {
          if (const auto token = Token_Of_Operands(a.text(), b.text())) {
            return Result::of_text(*token);
          }
        }
        const type_Restrictionator options = Intermediate_Format(limit);
        Decimal result = operation(options.maxSD);
        if (Has_Token_Mark(result.digits)) return Result::of_text(result.digits);
        if (result.digits.empty() || Has_Non_Digit(result.digits)) {
          return Result::of_text(Format_Result(std::move(result), options, true));
        }
        Strip_Zeros(result);
        Round(result, Digits_Formatted(options.maxSD));
        return Result::of(result);
      },
      [](const Run_Time_Failure&) { return Result::of_text(value_token); });
}

Step_Number Power_Of_Numbers(const Step_Number& base, const Step_Number& exponent,
                             const Steps& steps, bool restricted) {
  return Take_Step<As_Step_Number>(base, exponent, steps.limit(), [&](double maxSD) {
    const Step_Options options{maxSD, restricted};
    if (!base.is_in_limbs() || !exponent.is_in_limbs()) {
      return Power_Function(Operand(base.text()), Operand(exponent.text()), options);
    }
    const NumberText power = exponent.text();
    const double working_digits = Length_Without_Separator(base) + Length_Without_Separator(power);
    if (Are_Too_Long(options, working_digits)) return Decimal_Token(num_token);
    return Raise(base.decimal(), power, maxSD, working_digits);
  });
}

// Of a number in limbs itself.
Step_Number Cleaned(const Step_Number& number) {
  return number.is_in_limbs() ? number : Clean_Number(Operand(number.text()));
}

template <typename Result>
auto Take_Root(const Step_Number& radicand, const Step_Number& degree, const Steps& steps) {
  return Take_Step<Result>(radicand, degree, steps.limit(), [&](double maxSD) {
    return Root_Of_Number(Cleaned(radicand), Cleaned(degree), {maxSD}, Power);
  });
}

// Squares and cubes of numbers of common sizes, which the rounds of low roots take, and for which
// no digits are written out: all their zeros have room, and none of them is a count.
constexpr std::int64_t common_power = 1'000'000;

bool Is_Low_Power(const Step_Number& base, const Step_Number& exponent, double limit) {
  if (!base.is_in_limbs() || base.is_zero() || !exponent.is_in_limbs()) return false;
  const limbs::Number& n = exponent.in_limbs();
  return n.count() == 1 && n.low == 0 && !n.negative && (n.data()[0] == 2 || n.data()[0] == 3) &&
         limit >= 1 && limit <= maximum_digits && std::trunc(limit) == limit &&
         std::abs(base.leading_power()) <= common_power && Plain_Length(base) <= common_power;
}

Step_Number Low_Power(const Step_Number& base, const Step_Number& exponent, double limit) {
  // The exponent's one digit and those of the base are guard digits.
  const Steps products(With_Guard_Digit(limit) + Length_Without_Separator(base) + 1);
  return With_Handler(
      [&] {
        Yield();
        Step_Number power = products.product(base, base);
        if (exponent.in_limbs().data()[0] == 3) products.multiply(power, base);
        // Rounded to the limit like any step.
        return Steps(limit).product(std::move(power), Step_Number(1));
      },
      [](const Run_Time_Failure&) { return Step_Number(value_token); });
}

}  // namespace

Decimal Power_Function(const Operand& base, const Operand& exponent, const Step_Options& options) {
  Decimal number = base.is_number() ? Significant_Digits(!base.positive(), base.parts())
                                    : Significant_Digits(Clean_Text(base));
  const NumberText power = Clean_Text(exponent);
  const double working_digits = Working_Digits(
      options, static_cast<double>(Plain_Length(number)) + Length_Without_Separator(power));
  if (Are_Too_Long(options, working_digits)) return Decimal_Token(num_token);
  return Raise(std::move(number), power, options.maxSD, working_digits);
}

Step_Number Power(const Step_Number& base, const Step_Number& exponent, const Steps& steps) {
  if (Is_Low_Power(base, exponent, steps.limit())) return Low_Power(base, exponent, steps.limit());
  return Power_Of_Numbers(base, exponent, steps, false);
}

Step_Number Restricted_Power(const Step_Number& base, const Step_Number& exponent,
                             const Steps& steps) {
  return Power_Of_Numbers(base, exponent, steps, true);
}

Step_Number Root(const Step_Number& radicand, const Step_Number& degree, const Steps& steps) {
  return Take_Root<As_Step_Number>(radicand, degree, steps);
}

Decimal Root_Digits(const Step_Number& radicand, const Step_Number& degree, const Steps& steps) {
  return Take_Root<As_Decimal>(radicand, degree, steps);
}

}  // namespace quorvex
