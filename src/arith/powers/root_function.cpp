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

}  // namespace

Decimal Root_Function(const Operand& radicand, const Operand& degree, const Step_Options& options,
                      Power_Step power) {
  NumberText number = Clean_Text(radicand);
  NumberText root_of = Clean_Text(degree);
  const double working_digits = Working_Digits(options, root_of, number);
  if (Are_Too_Long(options, working_digits)) return Decimal_Token(num_token);
  if (root_of == "0") return Decimal_Token(unmarked_div0_token);
  if (number == "0" || number == "1" || root_of == "1") return Read_Decimal(std::move(number));
  if (number.starts_with('-') && !Is_Odd_Whole(root_of)) return Decimal_Token(num_token);
  if (root_of.starts_with('-')) {
    root_of.erase(0, 1);
    number = Intermediate(operation::divide, "1", number, options.maxSD);
  }
  // The first step would bring the degree's token before that of the radicand.
  if (Has_Token_Mark(root_of)) return Decimal_Token(root_of);
  if (Has_Token_Mark(number)) return Decimal_Token(number);
  const NumberText start = Root_Estimate(number, root_of);
  if (root_of == "2") return Mean_Root(Step_Number(number), Step_Number(start), options.maxSD);
  return Newton_Root(number, root_of, start, {options.maxSD, options.maxSD + working_digits},
                     power);
}

}  // namespace quorvex
