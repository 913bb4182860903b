#include "arith/powers/power_function.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "arith/fractions/reduce_fraction.h"
#include "arith/operation/do_operation.h"
#include "arith/powers/exponent_split.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/clean_up_number.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr int deepest_split = 1000;

Scaled_Number Digit(char digit) {
  Scaled_Number number;
  number.digits = digit;
  return number;
}

bool Is_One(const Scaled_Number& number) {
  return number.digits == "1" && number.exponent == 0 && !number.negative;
}

// Whether a whole number is greater than three. Fails for one that is a token.
bool Is_Split(const NumberText& exponent) {
  const bool is_plain = !exponent.empty() && exponent.front() != '0' && !Has_Non_Digit(exponent);
  if (is_plain || exponent == "0") return exponent.size() > 1 || exponent.front() > '3';
  const HostValue answer = Compare_Numbers(exponent, "3", false, true);
  if (answer.is_text()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "An exponent is no number.");
  }
  return answer.boolean();
}

Scaled_Number Reciprocal(const Scaled_Number& base, double limit) {
  if (base.is_token()) return base;
  const HostValue digits = limit;
  return Scaled(Do_Operation(operation::divide, 1, Plain_Text(base),
                             {.maximum_significant_digits = digits}, {.intermediate = true}));
}

// The product of one to three factors. The first one is multiplied by 1, which rounds it.
Scaled_Number Multiply_Out(const Scaled_Number& base, int factors, double limit) {
  if (factors == 1) return Product(Digit('1'), base, limit);
  Scaled_Number rounded;
  const bool is_cut = static_cast<double>(base.digits.size()) > limit + 2;
  if (is_cut) {
    rounded = base;
    Round(rounded, limit + 2);
  }
  Scaled_Number product = Product(is_cut ? rounded : base, base, limit);
  return factors == 2 ? product : Product(product, base, limit);
}

Scaled_Number Integer_Power(const Scaled_Number& base, const NumberText& n, double maxSD,
                            int depth);

Scaled_Number Positive_Power(const Scaled_Number& base, const NumberText& exponent, double maxSD,
                             double limit, int depth) {
  if (Is_Split(exponent)) return Integer_Power(base, exponent, maxSD, depth);
  return Multiply_Out(base, exponent.front() - '0', limit);
}

// A whole power of a number other than 0.
Scaled_Number Whole_Power(const Scaled_Number& base, const NumberText& exponent, double maxSD,
                          double working_digits, int depth) {
  if (exponent == "0" || Is_One(base)) return Digit('1');
  if (exponent == "1") return base;
  const double limit = working_digits + maxSD;
  if (!exponent.starts_with('-')) return Positive_Power(base, exponent, maxSD, limit, depth);
  return Positive_Power(Reciprocal(base, limit), exponent.substr(1), maxSD, limit, depth);
}

// The power as `Do_Operation` gives it at the limit.
Scaled_Number Power_At(const Scaled_Number& base, const NumberText& exponent, double limit,
                       int depth) {
  if (base.is_token()) return base;
  const double working_digits =
      static_cast<double>(Plain_Length(base)) + static_cast<double>(exponent.size());
  Scaled_Number power = Whole_Power(base, exponent, limit + 1, working_digits, depth + 1);
  Round(power, limit + 2);
  return power;
}

Scaled_Number Partial_Power(const Scaled_Number& base, const NumberText& n, double maxSD,
                            int depth) {
  return Is_Split(n) ? Integer_Power(base, n, maxSD, depth + 1) : Power_At(base, n, maxSD, depth);
}

// base to the n = A * B + C, every product rounded at the limit.
Scaled_Number Integer_Power(const Scaled_Number& base, const NumberText& n, double maxSD,
                            int depth) {
  if (depth > deepest_split) {
    throw Run_Time_Failure(Failure_Number::too_complex,
                           "An exponent is too long for the limit of digits.");
  }
  const Exponent_Split split = Split_Exponent(n, maxSD);
  Scaled_Number power = Partial_Power(base, split.A, maxSD, depth);
  if (!power.is_token()) power = Partial_Power(power, split.B, maxSD, depth);
  if (power.is_token()) return power;
  const Scaled_Number rest = Partial_Power(base, split.C, maxSD, depth);
  return Is_One(rest) ? power : Product(power, rest, maxSD);
}

// The root of the fraction's divisor, raised to its numerator.
Scaled_Number Fractional_Power(const Scaled_Number& base, const NumberText& exponent,
                               double limit) {
  const bool is_reciprocal = exponent.starts_with('-');
  const Scaled_Number root_of = is_reciprocal ? Reciprocal(base, limit) : base;
  const std::string_view magnitude = std::string_view(exponent).substr(is_reciprocal ? 1 : 0);
  const std::size_t place = magnitude.find(Decimal_Separator());
  const std::string_view integer = magnitude.substr(0, place);
  const std::string_view decimals = magnitude.substr(place + Decimal_Separator().size());
  NumberText numerator = integer == "0" ? "" : NumberText(integer);
  numerator += decimals;
  const type_Fraction fraction =
      Reduce_Fraction(numerator, "1" + NumberText(decimals.size(), '0'), {});
  const NumberText root =
      Intermediate(operation::root, Plain_Text(root_of), fraction.divisor, limit);
  return Scaled(Intermediate(operation::power, root, fraction.Numerator, limit));
}

// Text has room for so many integer digits, and formatting would refuse more.
bool Is_Too_Long(const Scaled_Number& number) {
  return number.exponent > 0 &&
         static_cast<double>(number.digits.size()) + static_cast<double>(number.exponent) >=
             maximum_digits;
}

}  // namespace

Scaled_Number Power_Function(const Operand& base, const Operand& exponent,
                             const Step_Options& options) {
  const NumberText number = Clean_Text(base);
  const NumberText power = Clean_Text(exponent);
  const double working_digits = Working_Digits(options, number, power);
  if (Are_Too_Long(options, working_digits)) return Scaled_Token(num_token);
  if (power == "0") return Digit('1');
  if (number == "0") return Digit('0');
  Scaled_Number scaled = Scaled(number);
  if (Is_One(scaled) || power == "1") return scaled;
  if (Has_Fraction(power)) {
    return scaled.negative ? Scaled_Token(num_token)
                           : Fractional_Power(scaled, power, working_digits + options.maxSD);
  }
  Scaled_Number result = Whole_Power(scaled, power, options.maxSD, working_digits, 0);
  return Is_Too_Long(result) ? Scaled_Token(num_token) : result;
}

}  // namespace quorvex
