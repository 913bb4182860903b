#include "arith/fractions/whole_divisor.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "arith/fractions/exact_divisor.h"
#include "arith/operation/four_operations.h"
#include "arith/operation/operation_codes.h"
#include "host/platform.h"
#include "text/clean_up_number.h"
#include "text/digit_runs.h"
#include "text/format_result.h"
#include "text/options.h"
#include "text/primitives.h"
#include "text/round_function.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The greatest whole number that is not above a plain number.
NumberText Floor(const NumberText& number) {
  const auto direction = Is_Positive(number) ? Rounding_Direction::down : Rounding_Direction::up;
  return Round_Function(number, 0, direction, {});
}

// What a division leaves, with the sign of the divisor. It is cut twice: as a difference, and to
// one digit less as a result.
NumberText Remainder(const NumberText& dividend, const NumberText& divisor, double maxSD) {
  constexpr double spare = 5;
  const auto length = static_cast<double>(divisor.size());
  const NumberText quotient = Intermediate(operation::divide, dividend, divisor,
                                           static_cast<double>(dividend.size()) + length + spare);
  const NumberText whole = Floor(quotient);
  const NumberText product = Intermediate(operation::multiply, divisor, whole,
                                          length + static_cast<double>(whole.size()) + spare);
  Decimal difference = Read_Decimal(
      Clean_Up_Number(Intermediate(operation::subtract, dividend, product, maxSD), false, false));
  difference.negative = !Is_Positive(divisor);
  type_Restrictionator options;
  options.maxSD = maxSD;
  return Format_Result(std::move(difference), options, false);
}

std::string_view Digits_Of(const NumberText& number) {
  const std::string_view digits = Strip_Sign(number);
  return digits.substr(Count_Leading_Zeros(digits));
}

// A remainder is less than what it is divided by, and ends in all the zeros that both end in: where
// the longer of the two fits the limit without these, no remainder is ever cut.
bool Is_Exact(std::string_view a, std::string_view b, double maxSD) {
  const std::size_t zeros = std::min(Count_Trailing_Zeros(a), Count_Trailing_Zeros(b));
  return maxSD >= 1 && static_cast<double>(std::max(a.size(), b.size()) - zeros) <= maxSD + 1;
}

}  // namespace

Common_Divisor Divisor_Of(const NumberText& A, const NumberText& B, double maxSD,
                          Remainders remainders) {
  NumberText X = A;
  NumberText Y = B;
  for (bool is_first = true; X != "0"; is_first = false) {
    Yield();
    const std::string_view x = Digits_Of(X);
    const std::string_view y = Digits_Of(Y);
    if (remainders == Remainders::quick && Is_Exact(x, y, maxSD)) {
      if (is_first && x == y) return {true, {}};
      return {false, Exact_Divisor(x, y)};
    }
    NumberText remainder = Remainder(Y, X, maxSD);
    if (is_first && remainder == "0") {
      remainder = Remainder(X, Y, maxSD);
      if (remainder == "0") return {true, {}};
    }
    if (Has_Token_Mark(remainder)) return {false, std::move(remainder)};
    Y = std::exchange(X, std::move(remainder));
  }
  return {false, NumberText(Digits_Of(Y))};
}

}  // namespace quorvex
