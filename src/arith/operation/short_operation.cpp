#include "arith/operation/short_operation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/digits/short_sum.h"
#include "arith/division/recip_divide.h"
#include "arith/limbs/small_product.h"
#include "arith/operation/operation_codes.h"
#include "text/decimal.h"
#include "text/format_result.h"
#include "text/operand.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

struct Terms {
  double limit;
  bool intermediate;
};

// A longer sum is not read twice, where it turns out that it takes the other road. Products and
// quotients take it for what is no plain number alone; where they are longer than this, what is
// spared isn't worth the reading.
std::size_t Longest_Text(std::int16_t Operation) {
  const bool is_sum = Operation == operation::add || Operation == operation::subtract;
  return is_sum ? 2 * most_short_digits : 100'000;
}

// What is written without asking for memory.
constexpr std::int64_t most_zeros = 10'000;

bool Is_Unformatted(const Format_Arguments& format) {
  return format.format_negative.is_missing() && format.format_thousands.is_missing() &&
         format.format_currency.is_missing() && format.exponential_notation.is_missing() &&
         format.format_decimal_place.is_missing() && format.preserve_decimal_place.is_missing();
}

// The limit, if it has been given as a number or not at all.
bool Read_Limit(const HostValue& digits, double& limit) {
  if (digits.is_missing()) {
    limit = Default_MaxSD();
    return true;
  }
  if (digits.kind() != HostValue::Kind::number) return false;
  limit = std::fmin(digits.number(), maximum_digits);
  return !std::isnan(digits.number());
}

// Two guard digits beyond the limit are kept.
bool Fits(std::size_t digits, double limit) {
  return static_cast<double>(digits) <= limit + 2;
}

bool Add(const Plain_Number& a, const Plain_Number& b, double limit, NumberText& result) {
  const std::size_t digits = std::max(a.parts.integer.size(), b.parts.integer.size()) + 1 +
                             std::max(a.parts.fraction.size(), b.parts.fraction.size());
  if (!Is_Short(a) || !Is_Short(b) || !Fits(digits, limit)) return false;
  result = Short_Sum(a, b);
  return true;
}

// Digits as they come from a product or a quotient; the number is theirs times ten to `power`.
NumberText Written(NumberText&& digits, std::int64_t power, bool negative, const Terms& terms) {
  if (digits.starts_with(token_mark)) return std::move(digits);
  if (power <= 0 && power > -most_zeros && !digits.empty() && Fits(digits.size(), terms.limit)) {
    if (power < 0 || negative || digits.front() == '0') {
      Write_Unformatted(digits, static_cast<std::size_t>(-power), negative);
    }
    return std::move(digits);
  }
  type_Restrictionator options;
  options.maxSD = terms.limit + 1;
  return Format_Result({std::move(digits), power, negative}, options, terms.intermediate);
}

std::int64_t Decimals(const Plain_Number& number) {
  return static_cast<std::int64_t>(number.parts.fraction.size());
}

NumberText Product(const Plain_Number& a, const Plain_Number& b, const Terms& terms) {
  const bool negative = a.negative != b.negative;
  const std::int64_t power = -Decimals(a) - Decimals(b);
  if (Is_Small(a) && Is_Small(b)) {
    Small_Product product(a, b);
    if (product.is_zero()) return Written("0", power, negative, terms);
    if (Can_Multiply()) {
      return Fits(product.digits().size(), terms.limit)
                 ? product.text()
                 : Written(NumberText(product.digits()), power, negative, terms);
    }
  }
  const Whole_Digits a_digits(a.parts);
  const Whole_Digits b_digits(b.parts);
  return Written(Multiply_In_Texts(a_digits.digits(), b_digits.digits()), power, negative, terms);
}

NumberText Quotient(const Plain_Number& a, const Plain_Number& b, const Terms& terms) {
  const Whole_Digits a_digits(a.parts);
  const Whole_Digits b_digits(b.parts);
  Decimal quotient = Divide_Digits(a_digits.digits(), b_digits.digits(),
                                   static_cast<std::int32_t>(terms.limit) + 1);
  return Written(std::move(quotient.digits), quotient.power_of_ten + Decimals(b) - Decimals(a),
                 a.negative != b.negative, terms);
}

// With its guard digit such a limit is a count of digits that a quotient may have.
bool Is_Count(double limit) {
  constexpr double most = 1'000'000'000;
  return limit >= 1 && limit <= most && limit == std::floor(limit);
}

}  // namespace

bool Short_Operation(std::int16_t Operation, const HostValue& number1, const HostValue& number2,
                     const Format_Arguments& format, bool intermediate, NumberText& result) {
  if (Operation < operation::add || Operation > operation::divide) return false;
  if (!number1.is_text() || !number2.is_text() || !Is_Unformatted(format)) return false;
  Terms terms{0, intermediate};
  Plain_Number a;
  Plain_Number b;
  const std::size_t longest = Longest_Text(Operation);
  const bool are_plain = number1.text().size() <= longest && number2.text().size() <= longest &&
                         Read_Limit(format.maximum_significant_digits, terms.limit) &&
                         Read_Plain(number1.text(), a) && Read_Plain(number2.text(), b);
  if (!are_plain) return false;
  switch (Operation) {
    case operation::multiply:
      result = Product(a, b, terms);
      return true;
    case operation::divide:
      if (!Is_Count(terms.limit)) return false;
      result = Quotient(a, b, terms);
      return true;
    default:
      if (Operation == operation::subtract) b.negative = !b.negative;
      return Add(a, b, terms.limit, result);
  }
}

}  // namespace quorvex
