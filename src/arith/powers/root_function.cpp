#include "arith/powers/root_function.h"

#include <string_view>
#include <utility>

#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "arith/powers/mean_root.h"
#include "arith/powers/newton_root.h"
#include "arith/powers/root_estimate.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Other functions don't take it for an error, which it has always been spelt for.
constexpr std::string_view unmarked_div0_token = "DIV/0!";

// What is no number is not odd.
bool Is_Odd_Whole(const NumberText& degree) {
  if (Has_Fraction(degree) || Has_Token_Mark(degree)) return false;
  return (degree.back() - '0') % 2 == 1;
}

// The root as text with its sign.
NumberText Root_Text(const Operand& radicand, const Operand& degree, const Step_Options& options,
                     Power_At_Limit raise) {
  NumberText number = Clean_Text(radicand);
  NumberText power = Clean_Text(degree);
  const double working_digits = Working_Digits(options, power, number);
  if (Are_Too_Long(options, working_digits)) return NumberText(num_token);
  if (power == "0") return NumberText(unmarked_div0_token);
  if (number == "0" || number == "1" || power == "1") return number;
  if (number.starts_with('-') && !Is_Odd_Whole(power)) return NumberText(num_token);
  if (power.starts_with('-')) {
    power.erase(0, 1);
    number = Intermediate(operation::divide, "1", number, options.maxSD);
  }
  // The first step would bring the degree's token before that of the radicand.
  if (Has_Token_Mark(power)) return power;
  if (Has_Token_Mark(number)) return number;
  NumberText start = Root_Estimate(number, power);
  if (power == "2") return Mean_Root(number, std::move(start), options.maxSD);
  return Newton_Root(number, power, std::move(start),
                     {options.maxSD, options.maxSD + working_digits}, raise);
}

}  // namespace

Decimal Root_Function(const Operand& radicand, const Operand& degree, const Step_Options& options,
                      Power_At_Limit power) {
  return Read_Decimal(Root_Text(radicand, degree, options, power));
}

}  // namespace quorvex
