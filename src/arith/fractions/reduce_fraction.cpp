#include "arith/fractions/reduce_fraction.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "arith/fractions/exact_divisor.h"
#include "arith/fractions/fraction_scale.h"
#include "arith/operation/do_operation.h"
#include "arith/operation/scaled_number.h"
#include "host/conversions.h"
#include "text/clean_up_number.h"
#include "text/digit_runs.h"
#include "text/operand.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Numbers of so many characters go through floats, which hold them exactly.
constexpr std::size_t short_length = 9;

NumberText Magnitude(std::string_view text) {
  return NumberText(Strip_Sign(text));
}

bool Is_One(const NumberText& number) {
  return number == "1" || number == "-1";
}

// The fraction as it was given, and in normal form.
struct Fraction {
  NumberText N;
  NumberText D;
  NumberText origN;
  NumberText origD;

  type_Fraction unreduced() && { return {std::move(N), std::move(D), "1"}; }
};

void Simplify_Signs(Fraction& fraction) {
  if (!fraction.D.starts_with('-')) return;
  fraction.D.erase(0, 1);
  if (fraction.N.starts_with('-')) {
    fraction.N.erase(0, 1);
  } else {
    fraction.N.insert(0, 1, '-');
  }
}

type_Fraction Reduce_Short(Fraction fraction, const Scaled_Fraction& scaled, bool always) {
  const double numerator = Text_To_Number(scaled.A);
  const double divisor = Text_To_Number(scaled.B);
  auto a = static_cast<std::int32_t>(numerator);
  auto b = static_cast<std::int32_t>(divisor);
  while (a != 0) {
    const std::int32_t remainder = b % a;
    b = a;
    a = remainder;
  }
  const double common = std::abs(b);
  const double reduced = numerator / common;
  if (std::abs(reduced) > std::abs(Text_To_Number(fraction.N)) && !always) {
    return std::move(fraction).unreduced();
  }
  return {Number_To_Text(reduced), Number_To_Text(divisor / common),
          Number_To_Text(std::abs(Text_To_Number(fraction.origN) / reduced))};
}

std::string_view Digits_Of(const NumberText& number) {
  const std::string_view digits = Strip_Sign(number);
  return digits.substr(Count_Leading_Zeros(digits));
}

// A multiple of a divisor, divided by it. The quotient is whole and has as many digits as the limit
// at most, and what is dropped behind them rounds to it, so it is exact.
NumberText Divide_Out(const NumberText& multiple, const NumberText& divisor) {
  const std::size_t digits = multiple.size() - divisor.size() + 1;
  return Intermediate(operation::divide, multiple, divisor, static_cast<double>(digits));
}

// The numerator was scaled by a power of ten and divided by the common divisor, so the divisor,
// scaled back, is what it was reduced by.
NumberText Scaled_Back(const NumberText& divisor, std::size_t decimals) {
  Scaled_Number number = Scaled(divisor);
  number.exponent -= static_cast<std::int64_t>(decimals);
  return Plain_Text(number);
}

type_Fraction Reduce_Long(Fraction fraction, Scaled_Fraction scaled, bool always) {
  const std::string_view a = Digits_Of(scaled.A);
  const std::string_view b = Digits_Of(scaled.B);
  if (a == b) return {std::move(scaled.A), std::move(scaled.B), "1"};
  const NumberText common = Exact_Divisor(a, b);
  if (common != "1") {
    scaled.A = Divide_Out(scaled.A, common);
    scaled.B = Divide_Out(scaled.B, common);
    if (Has_Token_Mark(scaled.A)) return {scaled.A, scaled.A, scaled.A};
  }
  const Operand reduced(scaled.A);
  const Operand given(fraction.N);
  if (std::is_gt(Compare_Magnitudes(reduced.parts(), given.parts())) && !always) {
    return std::move(fraction).unreduced();
  }
  return {std::move(scaled.A), std::move(scaled.B), Scaled_Back(common, scaled.decimals)};
}

}  // namespace

type_Fraction Reduce_Fraction(std::string_view numerator, std::string_view divisor,
                              const Reduction_Options& options) {
  Fraction fraction;
  fraction.N = Clean_Up_Number(numerator, true, true).NumClean;
  if (Has_Token_Mark(fraction.N)) return {fraction.N, fraction.N, fraction.N};
  fraction.D = Clean_Up_Number(divisor, true, true).NumClean;
  if (Has_Token_Mark(fraction.D)) return {fraction.D, fraction.D, fraction.D};
  fraction.origN = fraction.N;
  fraction.origD = fraction.D;

  if (options.simplify_signs) Simplify_Signs(fraction);
  const bool numerator_is_zero = fraction.origN == "0";
  if (numerator_is_zero || fraction.origD == "0") fraction.N = Magnitude(fraction.N);
  if (numerator_is_zero) return {std::move(fraction.N), "1", std::move(fraction.D)};
  if (fraction.origD == "0") return {"1", std::move(fraction.D), std::move(fraction.N)};
  if (Is_One(fraction.origN) || Is_One(fraction.origD)) return std::move(fraction).unreduced();

  Scaled_Fraction scaled = Scale_To_Whole(fraction.N, fraction.D);
  if (scaled.A.size() <= short_length && scaled.B.size() <= short_length) {
    return Reduce_Short(std::move(fraction), scaled, options.always_simplify);
  }
  return Reduce_Long(std::move(fraction), std::move(scaled), options.always_simplify);
}

}  // namespace quorvex
