#include "numbers/mod_function.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "arith/division/exact_remainder.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/close_number.h"
#include "text/compare_numbers.h"
#include "text/decimal.h"
#include "text/format_result.h"
#include "text/guard_digits.h"
#include "text/limits.h"
#include "text/operand.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The values of `sign`; any other means that of the divisor.
constexpr double of_remainder = 1;
constexpr double of_dividend = 2;
constexpr double of_divisor = 3;
constexpr double none = 4;
constexpr double minus = 5;

double Wanted_Sign(const HostValue& sign) {
  if (Is_Single_Cell(sign)) return Wanted_Sign(Cell_Of(sign));
  if (sign.is_missing()) return of_divisor;
  if (!sign.is_text()) return To_Number(sign);
  return With_Handler([&] { return Text_To_Number(sign.text()); },
                      [](const Run_Time_Failure&) { return of_divisor; });
}

// The operation that forms the difference keeps two digits more than the limit. What that does not
// cut need not be written out and read again.
Decimal As_Operation_Gives(Decimal exact, double limit) {
  if (static_cast<double>(exact.digits.size()) <= Digits_Of_Result(limit)) return exact;
  type_Restrictionator options;
  options.maxSD = With_Guard_Digit(Up_To_Ceiling(limit));
  return Read_Decimal(Format_Result(std::move(exact), options, true));
}

Decimal Remainder(std::string_view dividend, const Operand& divisor, Quotient_Cut cut,
                  double limit) {
  return With_Handler(
      [&] {
        const Operand number(dividend);
        if (!number.is_number()) return Decimal_Token(value_token);
        return As_Operation_Gives(Remainder_Of(number, divisor, cut), limit);
      },
      [](const Run_Time_Failure&) { return Decimal_Token(value_token); });
}

bool Is_Shown_Positive(const HostValue& sign, const Decimal& remainder, const HostValue& dividend,
                       const HostValue& divisor) {
  const double wanted = Wanted_Sign(sign);
  if (wanted == of_remainder) return !remainder.negative;
  if (wanted == of_dividend) return Is_Positive(dividend);
  if (wanted == none || wanted == minus) return wanted == none;
  return Is_Positive(divisor);
}

}  // namespace

NumberText Mod_Function(const HostValue& dividend, const HostValue& divisor,
                        const HostValue& truncate, const HostValue& sign,
                        const Format_Arguments& format) {
  const double limit = Limit_As_Number(format.maximum_significant_digits);
  const Quotient_Cut cut = To_Boolean(truncate) ? Quotient_Cut::towards_zero : Quotient_Cut::down;
  std::string dividend_scratch;
  std::string divisor_scratch;
  const std::string_view dividend_text = Text_Of(dividend, dividend_scratch);
  const std::string_view divisor_text = Text_Of(divisor, divisor_scratch);
  if (dividend_text.empty() || divisor_text.empty()) return NumberText(value_token);

  std::optional<Operand> number;
  if (!Read_For_Comparison(divisor_text, number)) {
    throw Run_Time_Failure(Failure_Number::type_mismatch, "The divisor is no number.");
  }
  if (Is_Zero(number->parts())) return "DIV/0!";
  Decimal remainder = Remainder(dividend_text, *number, cut, limit);
  remainder.negative = !Is_Shown_Positive(sign, remainder, dividend, divisor);
  return Close_Number(std::move(remainder), format);
}

}  // namespace quorvex
