#include "arith/powers/root_function.h"

#include <string_view>
#include <utility>

#include "arith/operation/steps.h"
#include "arith/powers/mean_root.h"
#include "arith/powers/newton_root.h"
#include "arith/powers/root_estimate.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Other functions don't take it for an error, which it has always been spelt for.
constexpr std::string_view unmarked_div0_token = "DIV/0!";

// What is no number is not odd.
bool Is_Odd_Whole(const Step_Number& degree) {
  if (!degree.is_in_limbs() || degree.in_limbs().low != 0) return false;
  return degree.in_limbs().data()[0] % 2 == 1;
}

bool Is(const Step_Number& number, limbs::Limb small) {
  if (!number.is_in_limbs()) return false;
  const limbs::Number& limbs = number.in_limbs();
  if (small == 0) return limbs.is_zero();
  return limbs.count() == 1 && limbs.low == 0 && limbs.data()[0] == small && !limbs.negative;
}

// The root of a positive degree.
Decimal Iterate(const Step_Number& radicand, const Step_Number& degree, const Newton_Limits& limits,
                Power_Step power) {
  // The first step would bring the degree's token before that of the radicand.
  if (degree.is_token()) return Decimal_Token(degree.text());
  if (radicand.is_token()) return Decimal_Token(radicand.text());
  Step_Number start = Root_Estimate(radicand, degree);
  if (Is(degree, 2)) return Mean_Root(radicand, start, limits.maxSD);
  return Newton_Root(radicand, degree, std::move(start), limits, power);
}

}  // namespace

Decimal Root_Of_Number(const Step_Number& radicand, const Step_Number& degree,
                       const Step_Options& options, Power_Step power) {
  const double working_digits = Working_Digits(
      options, Length_Without_Separator(degree) + Length_Without_Separator(radicand));
  if (Are_Too_Long(options, working_digits)) return Decimal_Token(num_token);
  if (Is(degree, 0)) return Decimal_Token(unmarked_div0_token);
  if (Is(radicand, 0) || Is(radicand, 1) || Is(degree, 1)) return Read_Decimal(radicand);
  if (radicand.is_negative() && !Is_Odd_Whole(degree)) return Decimal_Token(num_token);
  const Newton_Limits limits{options.maxSD, options.maxSD + working_digits};
  if (!degree.is_negative()) return Iterate(radicand, degree, limits, power);
  Step_Number opposite = degree;
  opposite.negate();
  return Iterate(Steps(options.maxSD).quotient(Step_Number(1), radicand), opposite, limits, power);
}

Decimal Root_Function(const Operand& radicand, const Operand& degree, const Step_Options& options,
                      Power_Step power) {
  return Root_Of_Number(Clean_Number(radicand), Clean_Number(degree), options, power);
}

}  // namespace quorvex
