#include "arith/division/recip_divide.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <limits>
#include <string>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/division/long_quotient.h"
#include "arith/division/quick_quotient.h"
#include "arith/division/told_rounding.h"
#include "expects.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/clean_up_number.h"
#include "text/compare_numbers.h"
#include "text/digit_runs.h"
#include "text/round_to_sd.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

std::int32_t In_32_Bits(std::int64_t number) {
  if (number > std::numeric_limits<std::int32_t>::max() ||
      number < std::numeric_limits<std::int32_t>::min()) {
    throw Run_Time_Failure(Failure_Number::overflow, "A precision or a power of ten is too large.");
  }
  return static_cast<std::int32_t>(number);
}

// What is done when no digits need to be worked out: true if `quotient` is final.
bool Is_Answered_At_Once(std::string_view X, std::string_view Y, Decimal& quotient) {
  // Clean text is 0 only as "0".
  if (Y == "0") {
    quotient.digits = div0_token;
  } else if (X.starts_with('0')) {
    quotient.digits = "0";
  } else if (Y == "1") {
    quotient.digits = X;
  } else if (Y == X) {
    quotient.digits = "1";
  } else {
    return false;
  }
  return true;
}

// What is no digits gives what the digit routines make of it.
enum class Operands { digits, texts };

// The first `p` digits of the dividend times `p` digits of the divisor's reciprocal.
Decimal Multiply_By_Reciprocal(std::string_view X, std::string_view Y, std::int32_t p) {
  const type_Division_Recip inverse = myInverse5(NumberText(Y), p);
  NumberText product = Multiply_Digits(NumberText(X), inverse.digits);
  const std::size_t kept = std::min(product.size(), static_cast<std::size_t>(std::max(p, 0)));
  const auto left = static_cast<std::int64_t>(product.size() - kept);
  product.resize(kept);
  return {std::move(product), inverse.powerOfTen + left};
}

// Works in `quotient`, which is the result also where a failure ends it early.
void Divide(std::string_view X, std::string_view Y, Operands operands, std::int32_t sd,
            Decimal& quotient) {
  const std::int32_t p = In_32_Bits(std::int64_t{sd} + std::int64_t{division_guard_digits});
  const bool may_be_quick = operands == Operands::digits && Can_Multiply();
  if (may_be_quick && (Quick_Quotient(X, Y, sd, quotient) || Long_Quotient(X, Y, sd, quotient))) {
    return;
  }
  Decimal product = Multiply_By_Reciprocal(X, Y, p);
  quotient.digits = std::move(product.digits);
  const std::size_t before = quotient.digits.size();
  const auto rounded_away = static_cast<std::int64_t>(before) - sd;
  quotient.power_of_ten =
      In_32_Bits(product.power_of_ten + std::max<std::int64_t>(rounded_away, 0));
  if (sd < 1 || Has_Token_Mark(quotient.digits)) {
    // A copy: a token that was cut can't be rounded, and is then what there is.
    quotient.digits = To_Text(Round_To_SD(quotient.digits, sd));
  } else {
    Round_Digits(quotient.digits, sd);
  }
  if (quotient.digits.size() == before + 1) {
    quotient.power_of_ten = In_32_Bits(quotient.power_of_ten + 1);
  }
  if (sd < 0) {
    throw Run_Time_Failure(Failure_Number::invalid_call, "There are no digits to keep.");
  }
  if (quotient.digits.size() > static_cast<std::size_t>(sd)) {
    quotient.digits.resize(static_cast<std::size_t>(sd));
  }
}

Decimal Quotient(std::string_view X, std::string_view Y, Operands operands, std::int32_t sd) {
  Decimal quotient;
  if (Is_Answered_At_Once(X, Y, quotient)) return quotient;
  With_Handler([&] { Divide(X, Y, operands, sd, quotient); }, [](const Run_Time_Failure&) {});
  return quotient;
}

}  // namespace

Decimal Divide_Texts(NumberText& X, NumberText& Y, std::int32_t sd) {
  // Digits without leading zeros are clean as they are, which is what arithmetic passes.
  if (!Are_Significant(X) || !Are_Significant(Y)) {
    type_CleanUp dividend = Clean_Up_Number(X, true, true);
    if (dividend.IsError) return Decimal_Token(dividend.NumClean);
    type_CleanUp divisor = Clean_Up_Number(Y, true, true);
    if (divisor.IsError) return Decimal_Token(divisor.NumClean);
    X = std::move(dividend.NumClean);
    Y = std::move(divisor.NumClean);
  }
  return Quotient(X, Y, Has_Non_Digit(X) || Has_Non_Digit(Y) ? Operands::texts : Operands::digits,
                  sd);
}

Decimal Divide_Digits(std::string_view X, std::string_view Y, std::int32_t sd) {
  Expects((X == "0" || Are_Significant(X)) && (Y == "0" || Are_Significant(Y)));
  return Quotient(X, Y, Operands::digits, sd);
}

type_Division_Recip Recip_Divide(NumberText& X, NumberText& Y, std::int32_t sd) {
  Decimal quotient = Divide_Texts(X, Y, sd);
  return {std::move(quotient.digits), static_cast<std::int32_t>(quotient.power_of_ten)};
}

double DivisionDecimalPosition(const NumberText& divisor, const NumberText& dividend) {
  const auto divided = static_cast<double>(divisor.size());
  const auto by = static_cast<double>(dividend.size());
  if (std::is_gt(Order_Of_Digits(dividend, divisor))) {
    const NumberText leading = dividend.substr(0, divisor.size());
    return std::is_gteq(Order_Of_Digits(leading, divisor)) ? 1 - divided + by : by - divided;
  }
  if (by > divided) return 0;
  return std::is_gteq(Order_Of_Digits(dividend, divisor)) ? 1 : 0;
}

HostValue Min(const HostValue& num1, const HostValue& num2) {
  return To_Number(num1) < To_Number(num2) ? num1 : num2;
}

HostValue Max(const HostValue& num1, const HostValue& num2) {
  return To_Number(num1) > To_Number(num2) ? num1 : num2;
}

HostValue GetHalfofLong(std::int32_t num_as_long) {
  return std::floor(static_cast<double>(num_as_long) / 2.0);
}

}  // namespace quorvex
