#include "arith/operation/short_operation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/digits/short_sum.h"
#include "arith/division/recip_divide.h"
#include "arith/limbs/limbs.h"
#include "arith/limbs/short_product.h"
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

// A longer sum is not read twice, where it turns out that it takes the other road.
bool Is_Short(std::string_view text) {
  return text.size() <= 2 * most_short_digits;
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

// Below these lengths limbs cost less than a call of the library of products.
constexpr std::size_t few_limbs = 2;
constexpr std::size_t few_digits = few_limbs * limbs::digits;

NumberText Product_Of_Few(std::string_view a, std::string_view b) {
  std::array<limbs::Limb, few_limbs> a_limbs;
  std::array<limbs::Limb, few_limbs> b_limbs;
  std::array<limbs::Limb, 2 * few_limbs> product;
  limbs::Read_Number(a, a_limbs.data());
  limbs::Read_Number(b, b_limbs.data());
  const std::size_t a_count = limbs::Count_For(a.size());
  const std::size_t b_count = limbs::Count_For(b.size());
  limbs::Multiply(product.data(), a_limbs.data(), a_count, b_limbs.data(), b_count);
  std::array<char, 2 * few_digits> digits;
  char* end = digits.data();
  for (std::size_t place = a_count + b_count; place-- > 0; end += limbs::digits) {
    limbs::Write(end, product[place]);
  }
  const char* const begin =
      std::find_if(digits.data(), end, [](char digit) { return digit != '0'; });
  return {begin, static_cast<const char*>(end)};
}

bool Is_Zero(std::string_view digits) {
  return digits == "0";
}

// Digits as they come from a product or a quotient; the number is theirs times ten to `power`.
NumberText Written(NumberText digits, std::int64_t power, bool negative, const Terms& terms) {
  if (digits.starts_with(token_mark)) return digits;
  if (power <= 0 && power > -most_zeros && !digits.empty() && Fits(digits.size(), terms.limit)) {
    return Unformatted(std::move(digits), static_cast<std::size_t>(-power), negative);
  }
  type_Restrictionator options;
  options.maxSD = terms.limit + 1;
  return Format_Result({std::move(digits), power, negative}, options, terms.intermediate);
}

std::int64_t Decimals(const Plain_Number& number) {
  return static_cast<std::int64_t>(number.parts.fraction.size());
}

NumberText Product(const Plain_Number& a, const Plain_Number& b, const Terms& terms) {
  const Whole_Digits a_digits(a.parts);
  const Whole_Digits b_digits(b.parts);
  const std::string_view a_view = a_digits.digits();
  const std::string_view b_view = b_digits.digits();
  const bool are_few = std::max(a_view.size(), b_view.size()) <= few_digits && !Is_Zero(a_view) &&
                       !Is_Zero(b_view) && Can_Multiply();
  return Written(are_few ? Product_Of_Few(a_view, b_view) : Multiply_Digits(a_view, b_view),
                 -Decimals(a) - Decimals(b), a.negative != b.negative, terms);
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
  const bool are_plain = Is_Short(number1.text()) && Is_Short(number2.text()) &&
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
