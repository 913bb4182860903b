#include "arith/powers/power_function.h"

#include <cmath>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/fractions/reduce_fraction.h"
#include "arith/operation/decimal_product.h"
#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "arith/powers/exponent_split.h"
#include "arith/powers/root_function.h"
#include "host/conversions.h"
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

// The numbers of a chain of products: in limbs, or digits with a count of zeros where they are many
// or the limit is none that limbs know. Both give the same.

bool Is_One(const Decimal& number) {
  return number.digits == "1" && number.power_of_ten == 0 && !number.negative;
}

bool Is_One(const Step_Number& number) {
  return number.is_in_limbs() && Is_Equal(number, Step_Number(1));
}

template <typename Number>
Number One() {
  if constexpr (std::is_same_v<Number, Decimal>) {
    return {"1"};
  } else {
    return Step_Number(1);
  }
}

Step_Number Product(const Step_Number& a, const Step_Number& b, double limit) {
  Yield();
  return Steps(limit).product(a, b);
}

// Multiplied by 1 a number is rounded, to two digits more than the limit.
void Round(Step_Number& number, double count) {
  constexpr double formatted_beyond = 2;
  number = Steps(count - formatted_beyond).product(number, Step_Number(1));
}

// Digits that are to be multiplied can't be 0.
Decimal Significant(std::string_view text) {
  Decimal number = Significant_Digits(text);
  if (number.digits.empty()) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "A factor of a power is 0.");
  }
  return number;
}

Decimal Reciprocal(const Decimal& base, double limit) {
  if (base.is_token()) return base;
  return Significant(Intermediate(operation::divide, "1", Plain_Text(base), limit));
}

Step_Number Reciprocal(const Step_Number& base, double limit) {
  return Steps(limit).quotient(Step_Number(1), base);
}

// Whether a whole number is greater than three. Fails for one that is a token.
bool Is_Split(const NumberText& exponent) {
  const bool is_plain = !exponent.empty() && exponent.front() != '0' && !Has_Non_Digit(exponent);
  if (is_plain || exponent == "0") return exponent.size() > 1 || exponent.front() > '3';
  return Is_Greater(exponent, "3");
}

// A whole power, every product of it rounded at the limit.
template <typename Number>
class Whole_Power {
 public:
  // The power of a number other than 0.
  static Number of(const Number& base, const NumberText& exponent, double maxSD,
                   double working_digits, int depth) {
    if (exponent == "0" || Is_One(base)) return One<Number>();
    if (exponent == "1") return base;
    const double limit = working_digits + maxSD;
    if (!exponent.starts_with('-')) return positive(base, exponent, maxSD, limit, depth);
    return positive(Reciprocal(base, limit), exponent.substr(1), maxSD, limit, depth);
  }

 private:
  static Number positive(const Number& base, const NumberText& exponent, double maxSD, double limit,
                         int depth) {
    if (Is_Split(exponent)) return split(base, exponent, maxSD, depth);
    return multiply_out(base, exponent.front() - '0', limit);
  }

  // The product of one to three factors. The first one is multiplied by 1, which rounds it.
  static Number multiply_out(const Number& base, int factors, double limit) {
    if (factors == 1) return Product(One<Number>(), base, limit);
    Number rounded = base;
    Round(rounded, limit + 2);
    Number product = Product(rounded, base, limit);
    return factors == 2 ? product : Product(product, base, limit);
  }

  // base to the n = A * B + C.
  static Number split(const Number& base, const NumberText& n, double maxSD, int depth) {
    if (depth > deepest_split) {
      throw Run_Time_Failure(Failure_Number::too_complex,
                             "An exponent is too long for the limit of digits.");
    }
    const Exponent_Split split = Split_Exponent(n, maxSD);
    Number power = partial(base, split.A, maxSD, depth);
    if (!power.is_token()) power = partial(power, split.B, maxSD, depth);
    if (power.is_token()) return power;
    const Number rest = partial(base, split.C, maxSD, depth);
    return Is_One(rest) ? power : Product(power, rest, maxSD);
  }

  static Number partial(const Number& base, const NumberText& n, double maxSD, int depth) {
    return Is_Split(n) ? split(base, n, maxSD, depth + 1) : at_limit(base, n, maxSD, depth);
  }

  // The power as `Do_Operation` gives it at the limit.
  static Number at_limit(const Number& base, const NumberText& exponent, double limit, int depth) {
    if (base.is_token()) return base;
    const double working_digits =
        static_cast<double>(Plain_Length(base)) + static_cast<double>(exponent.size());
    Number power = of(base, exponent, limit + 1, working_digits, depth + 1);
    Round(power, limit + 2);
    return power;
  }
};

// The root of the fraction's divisor, raised to its numerator.
Decimal Fractional_Power(const Step_Number& base, const NumberText& exponent, double limit) {
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
  const Step_Number root_of = is_reciprocal ? steps.quotient(Step_Number(1), base) : base;
  const Step_Number root = Root(root_of, Step_Number(fraction.divisor), steps);
  return Power(root, Step_Number(fraction.Numerator), steps).decimal();
}

// Text has room for so many integer digits, and formatting would refuse more.
bool Is_Too_Long(const Decimal& number) {
  return number.power_of_ten > 0 &&
         static_cast<double>(number.digits.size()) + static_cast<double>(number.power_of_ten) >=
             maximum_digits;
}

// Of so many digits, products by the library cost less than those of limbs.
constexpr double most_digits_in_limbs = 1000;

bool Is_For_Limbs(const Step_Number& base, double maxSD, double working_digits) {
  const auto is_whole = [](double number) {
    return number >= 1 && number <= most_digits_in_limbs && std::trunc(number) == number;
  };
  return base.is_in_limbs() && is_whole(maxSD) && is_whole(working_digits) && Can_Multiply();
}

// The power of a number in normal form.
Decimal Raise(const Step_Number& base, const NumberText& exponent, double maxSD,
              double working_digits) {
  if (exponent == "0") return {"1"};
  if (base.is_zero()) return {"0"};
  if (Is_One(base) || exponent == "1") return base.decimal();
  if (Has_Fraction(exponent)) {
    return base.is_negative() ? Decimal_Token(num_token)
                              : Fractional_Power(base, exponent, working_digits + maxSD);
  }
  Decimal power =
      Is_For_Limbs(base, maxSD, working_digits)
          ? Whole_Power<Step_Number>::of(base, exponent, maxSD, working_digits, 0).decimal()
          : Whole_Power<Decimal>::of(Significant(base.text()), exponent, maxSD, working_digits, 0);
  return Is_Too_Long(power) ? Decimal_Token(num_token) : power;
}

// An operation between two steps: with the guard digit that operations add, and rounded as
// formatting rounds.
template <typename Operation>
Step_Number Take_Step(const Step_Number& a, const Step_Number& b, double limit,
                      const Operation& operation) {
  return With_Handler(
      [&] {
        if (a.is_token() || b.is_token()) {
          if (const auto token = Token_Of_Operands(a.text(), b.text())) return Step_Number(*token);
        }
        type_Restrictionator options;
        options.maxSD = std::fmin(limit, maximum_digits) + 1;
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

}  // namespace

Decimal Power_Function(const Operand& base, const Operand& exponent, const Step_Options& options) {
  const NumberText number = Clean_Text(base);
  const NumberText power = Clean_Text(exponent);
  const double working_digits = Working_Digits(options, number, power);
  if (Are_Too_Long(options, working_digits)) return Decimal_Token(num_token);
  return Raise(Step_Number(number), power, options.maxSD, working_digits);
}

Step_Number Power(const Step_Number& base, const Step_Number& exponent, const Steps& steps,
                  bool restricted) {
  return Take_Step(base, exponent, steps.limit(), [&](double maxSD) {
    const Step_Options options{maxSD, restricted};
    if (!base.is_in_limbs() || !exponent.is_in_limbs()) {
      return Power_Function(Operand(base.text()), Operand(exponent.text()), options);
    }
    const NumberText power = exponent.text();
    const double working_digits =
        static_cast<double>(Plain_Length(base)) + Length_Without_Separator(power);
    if (Are_Too_Long(options, working_digits)) return Decimal_Token(num_token);
    return Raise(base, power, maxSD, working_digits);
  });
}

Step_Number Root(const Step_Number& radicand, const Step_Number& degree, const Steps& steps) {
  return Take_Step(radicand, degree, steps.limit(), [&](double maxSD) {
    return Root_Function(Operand(radicand.text()), Operand(degree.text()), {maxSD}, Power_Step);
  });
}

NumberText Power_Step(std::string_view base, std::string_view exponent, double limit) {
  return Power(Step_Number(base), Step_Number(exponent), Steps(limit)).text();
}

}  // namespace quorvex
