#include "arith/powers/power_function.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "arith/fractions/reduce_fraction.h"
#include "arith/operation/decimal_product.h"
#include "arith/powers/exponent_split.h"
#include "arith/powers/root_function.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/clean_up_number.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr int deepest_split = 1000;

// The numbers of a chain stay digits with a count of zeros: huge exponents write none, and the
// library of products takes digits as fast as limbs are multiplied, at any length.
Decimal Digit(char digit) {
  return {NumberText(1, digit)};
}

bool Is_One(const Decimal& number) {
  return number.digits == "1" && number.power_of_ten == 0 && !number.negative;
}

// Whether a whole number is greater than three. Fails for one that is a token.
bool Is_Split(const NumberText& exponent) {
  const bool is_plain = !exponent.empty() && exponent.front() != '0' && !Has_Non_Digit(exponent);
  if (is_plain || exponent == "0") return exponent.size() > 1 || exponent.front() > '3';
  return Is_Greater(exponent, "3");
}

Decimal Reciprocal(const Decimal& base, double limit) {
  if (base.is_token()) return base;
  return Steps(limit).quotient(Step_Number(1), Step_Number(base)).decimal();
}

// The product of one to three factors. The first one is multiplied by 1, which rounds it.
Decimal Multiply_Out(const Decimal& base, int factors, double limit) {
  if (factors == 1) return Product(Digit('1'), base, limit);
  Decimal rounded;
  const bool is_cut = static_cast<double>(base.digits.size()) > limit + 2;
  if (is_cut) {
    rounded = base;
    Round(rounded, limit + 2);
  }
  Decimal product = Product(is_cut ? rounded : base, base, limit);
  return factors == 2 ? product : Product(product, base, limit);
}

Decimal Integer_Power(const Decimal& base, const NumberText& n, double maxSD, int depth);

Decimal Positive_Power(const Decimal& base, const NumberText& exponent, double maxSD, double limit,
                       int depth) {
  if (Is_Split(exponent)) return Integer_Power(base, exponent, maxSD, depth);
  return Multiply_Out(base, exponent.front() - '0', limit);
}

// A whole power of a number other than 0.
Decimal Whole_Power(const Decimal& base, const NumberText& exponent, double maxSD,
                    double working_digits, int depth) {
  if (exponent == "0" || Is_One(base)) return Digit('1');
  if (exponent == "1") return base;
  const double limit = working_digits + maxSD;
  if (!exponent.starts_with('-')) return Positive_Power(base, exponent, maxSD, limit, depth);
  return Positive_Power(Reciprocal(base, limit), exponent.substr(1), maxSD, limit, depth);
}

// The power as `Do_Operation` gives it at the limit.
Decimal Power_At(const Decimal& base, const NumberText& exponent, double limit, int depth) {
  if (base.is_token()) return base;
  const double working_digits =
      static_cast<double>(Plain_Length(base)) + static_cast<double>(exponent.size());
  Decimal power = Whole_Power(base, exponent, limit + 1, working_digits, depth + 1);
  Round(power, limit + 2);
  return power;
}

Decimal Partial_Power(const Decimal& base, const NumberText& n, double maxSD, int depth) {
  return Is_Split(n) ? Integer_Power(base, n, maxSD, depth + 1) : Power_At(base, n, maxSD, depth);
}

// base to the n = A * B + C, every product rounded at the limit.
Decimal Integer_Power(const Decimal& base, const NumberText& n, double maxSD, int depth) {
  if (depth > deepest_split) {
    throw Run_Time_Failure(Failure_Number::too_complex,
                           "An exponent is too long for the limit of digits.");
  }
  const Exponent_Split split = Split_Exponent(n, maxSD);
  Decimal power = Partial_Power(base, split.A, maxSD, depth);
  if (!power.is_token()) power = Partial_Power(power, split.B, maxSD, depth);
  if (power.is_token()) return power;
  const Decimal rest = Partial_Power(base, split.C, maxSD, depth);
  return Is_One(rest) ? power : Product(power, rest, maxSD);
}

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
  if (exponent == "0") return Digit('1');
  if (base.digits == "0") return base;
  if (Is_One(base) || exponent == "1") return base;
  if (Has_Fraction(exponent)) {
    return base.negative ? Decimal_Token(num_token)
                         : Fractional_Power(base, exponent, working_digits + maxSD);
  }
  Decimal power = Whole_Power(base, exponent, maxSD, working_digits, 0);
  return Is_Too_Long(power) ? Decimal_Token(num_token) : power;
}

// With the guard digit that operations add.
type_Restrictionator Step_Formats(double limit) {
  type_Restrictionator options;
  options.maxSD = std::fmin(limit, maximum_digits) + 1;
  return options;
}

// An operation between two steps, rounded as formatting rounds.
template <typename Operation>
Step_Number Take_Step(const Step_Number& a, const Step_Number& b, double limit,
                      const Operation& operation) {
  return With_Handler(
      [&] {
        if (a.is_token() || b.is_token()) {
          if (const auto token = Token_Of_Operands(a.text(), b.text())) return Step_Number(*token);
        }
        const type_Restrictionator options = Step_Formats(limit);
        Decimal result = operation(options.maxSD);
        if (Has_Token_Mark(result.digits)) return Step_Number(std::string_view(result.digits));
        if (result.digits.empty() || Has_Non_Digit(result.digits)) {
          return Step_Number(Format_Result(std::move(result), options, true));
        }
        Strip_Zeros(result);
        Round(result, options.maxSD + 1);
        return Step_Number(result);
      },
      [](const Run_Time_Failure&) { return Step_Number(value_token); });
}

Step_Number Power_Of_Numbers(const Step_Number& base, const Step_Number& exponent,
                             const Steps& steps, bool restricted) {
  return Take_Step(base, exponent, steps.limit(), [&](double maxSD) {
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
  const Steps products(limit + 1 + Length_Without_Separator(base) + 1);
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
  return Take_Step(radicand, degree, steps.limit(), [&](double maxSD) {
    return Root_Of_Number(Cleaned(radicand), Cleaned(degree), {maxSD}, Power);
  });
}

}  // namespace quorvex
