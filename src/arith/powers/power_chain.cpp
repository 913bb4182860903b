#include "arith/powers/power_chain.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "arith/digits/multiply_digits.h"
#include "arith/limbs/limb_number.h"
#include "arith/operation/decimal_product.h"
#include "arith/operation/steps.h"
#include "arith/powers/exponent_split.h"
#include "arith/powers/limb_power.h"
#include "expects.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/guard_digits.h"

namespace quorvex {
namespace {

constexpr int deepest_split = 1000;

// Numbers of these chains are digits with a count of zeros: huge exponents write none, and the
// library of products takes digits.

Decimal Rounded(Decimal number, double limit) {
  Round(number, Digits_Of_Result(limit));
  return number;
}

bool Is_One(const Decimal& number) {
  return number.digits == "1" && number.power_of_ten == 0 && !number.negative;
}

Decimal Reciprocal(const Decimal& base, double limit) {
  if (base.is_token()) return base;
  return Steps(limit).quotient(Step_Number(1), Step_Number(base)).decimal();
}

// Exponents are words, where they have room and split exactly, and texts otherwise.
using Word = std::uint64_t;

// Whether a whole number is greater than three. Fails for one that is a token.
bool Is_Split(const NumberText& exponent) {
  const bool is_plain = !exponent.empty() && exponent.front() != '0' && !Has_Non_Digit(exponent);
  if (is_plain || exponent == "0") return exponent.size() > 1 || exponent.front() > '3';
  return Is_Greater(exponent, "3");
}

bool Is_Split(Word exponent) {
  return exponent > 3;
}

bool Is(const NumberText& exponent, char digit) {
  return exponent.size() == 1 && exponent.front() == digit;
}

bool Is(Word exponent, char digit) {
  return exponent == static_cast<Word>(digit - '0');
}

int Factors(const NumberText& exponent) {
  return exponent.front() - '0';
}

int Factors(Word exponent) {
  return static_cast<int>(exponent);
}

// Of one that needs no split, so a word of one digit.
double Length(const NumberText& exponent) {
  return static_cast<double>(exponent.size());
}

double Length(Word /*exponent*/) {
  return 1;
}

bool Is_Negative(const NumberText& exponent) {
  return exponent.starts_with('-');
}

bool Is_Negative(Word /*exponent*/) {
  return false;
}

NumberText Opposite(const NumberText& exponent) {
  return exponent.substr(1);
}

Word Opposite(Word exponent) {
  return exponent;
}

Exponent_Split Split(const NumberText& n, double maxSD) {
  return Split_Exponent(n, maxSD);
}

Short_Split Split(Word n, double /*maxSD*/) {
  return Split_Exponent(n);
}

// The product of one to three factors. The first one is multiplied by 1, which rounds it.
Decimal Multiply_Out(const Decimal& base, int factors, double limit) {
  Expects(factors >= 1 && factors <= 3);
  Decimal first = Rounded(base, limit);
  if (factors == 1) return first;
  Decimal product = Product(first, base, limit);
  return factors == 2 ? product : Product(product, base, limit);
}

// A number that is raised, with its square and its cube once one is asked for: both parts of a
// split often are.
class Base {
 public:
  explicit Base(const Decimal& number) : number_(number) {}

  const Decimal& number() const { return number_; }
  std::optional<Decimal>& square() { return square_; }
  std::optional<Decimal>& cube() { return cube_; }

 private:
  const Decimal& number_;
  std::optional<Decimal> square_;
  std::optional<Decimal> cube_;
};

template <typename Exponent>
Decimal Integer_Power(Base& base, const Exponent& n, double maxSD, int depth);

template <typename Exponent>
Decimal Positive_Power(const Decimal& base, const Exponent& exponent, double maxSD, double limit,
                       int depth) {
  if (Is_Split(exponent)) {
    Base raised(base);
    return Integer_Power(raised, exponent, maxSD, depth);
  }
  return Multiply_Out(base, Factors(exponent), limit);
}

template <typename Exponent>
Decimal Any_Power(const Decimal& base, const Exponent& exponent, double maxSD,
                  double working_digits, int depth) {
  if (Is(exponent, '0') || Is_One(base)) return {"1"};
  if (Is(exponent, '1')) return base;
  const double limit = working_digits + maxSD;
  if (!Is_Negative(exponent)) return Positive_Power(base, exponent, maxSD, limit, depth);
  return Positive_Power(Reciprocal(base, limit), Opposite(exponent), maxSD, limit, depth);
}

// The power as `Do_Operation` gives it at the limit. Its guard digits are as many as the base is
// long, so that the square of a number that is rounded itself is rounded but once.
template <typename Exponent>
Decimal Power_At(const Decimal& base, const Exponent& exponent, double limit, int depth) {
  if (base.is_token()) return base;
  const bool is_rounded = static_cast<double>(base.digits.size()) <= Digits_Of_Result(limit);
  if (is_rounded && Is(exponent, '2')) return Product(base, base, limit);
  const double working_digits = static_cast<double>(Plain_Length(base)) + Length(exponent);
  return Rounded(Any_Power(base, exponent, With_Guard_Digit(limit), working_digits, depth + 1),
                 limit);
}

template <typename Exponent>
Decimal Partial_Power(Base& base, const Exponent& n, double maxSD, int depth) {
  if (Is_Split(n)) return Integer_Power(base, n, maxSD, depth + 1);
  if (!Is(n, '2') && !Is(n, '3')) return Power_At(base.number(), n, maxSD, depth);
  std::optional<Decimal>& known = Is(n, '2') ? base.square() : base.cube();
  if (!known) known = Power_At(base.number(), n, maxSD, depth);
  return *known;
}

// base to the n = A * B + C, every product rounded at the limit.
template <typename Exponent>
Decimal Integer_Power(Base& base, const Exponent& n, double maxSD, int depth) {
  if (depth > deepest_split) {
    throw Run_Time_Failure(Failure_Number::too_complex,
                           "An exponent is too long for the limit of digits.");
  }
  const auto split = Split(n, maxSD);
  Decimal part = Partial_Power(base, split.A, maxSD, depth);
  if (part.is_token()) return part;
  Base part_base(part);
  Decimal power = Partial_Power(part_base, split.B, maxSD, depth);
  if (power.is_token() || Is(split.C, '0')) return power;
  const Decimal rest = Partial_Power(base, split.C, maxSD, depth);
  return Is_One(rest) ? power : Product(power, rest, maxSD);
}

// Products of short numbers cost less as limbs, where no power of ten runs over: there is room for
// any number between the steps then.
bool Takes_Limbs(const Decimal& base, Word exponent, double maxSD) {
  constexpr double most_digits = 1000;
  constexpr double farthest_power = 1e12;
  if (base.is_token() || !Is_Split(exponent) || !(maxSD >= 1 && maxSD <= most_digits)) return false;
  const auto length = static_cast<double>(base.digits.size());
  if (length > Digits_Of_Result(maxSD) || std::trunc(maxSD) != maxSD || !Can_Multiply()) {
    return false;
  }
  return (std::fabs(static_cast<double>(base.power_of_ten)) + length) *
             static_cast<double>(exponent) <=
         farthest_power;
}

}  // namespace

Decimal Whole_Power(const Decimal& base, const NumberText& exponent, double maxSD,
                    double working_digits) {
  Expects(base.digits != "0" && Is_Stripped(base));
  const std::optional<Word> word = Exactly_Split(exponent, maxSD);
  if (!word) return Any_Power(base, exponent, maxSD, working_digits, 0);
  if (!Takes_Limbs(base, *word, maxSD)) return Any_Power(base, *word, maxSD, working_digits, 0);
  return limbs::Decimal_Of(
      Limb_Power(limbs::Number_Of(base), *word, static_cast<std::size_t>(maxSD)));
}

}  // namespace quorvex
