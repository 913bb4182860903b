#include "elementary/factorial.h"

#include <cmath>
#include <string>
#include <utility>

#include "arith/digits/multiply_digits.h"
#include "arith/operation/steps.h"
#include "elementary/steps/step_digits.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/shown_text.h"
#include "numbers/whole_part.h"
#include "text/close_number.h"
#include "text/length_limit.h"
#include "text/primitives.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Factors of a product, in order: `first`, `first` + `step` and so on.
struct Factors {
  std::int32_t first = 1;
  std::int32_t step = 1;
  std::int32_t count = 0;

  std::int32_t operator[](std::int32_t place) const { return first + place * step; }

  Factors part(std::int32_t begin, std::int32_t end) const {
    return {(*this)[begin], step, end - begin};
  }
};

// So many of the greatest factors fit into 64 bits.
constexpr std::int32_t factors_in_word = 4;

// The product in full: with factors of about equal length it costs far less than one by one.
NumberText Exact_Product(const Factors& factors) {
  if (factors.count <= factors_in_word) {
    std::uint64_t product = 1;
    for (std::int32_t place = 0; place < factors.count; ++place) {
      product *= static_cast<std::uint64_t>(factors[place]);
    }
    return std::to_string(product);
  }
  Yield();
  const std::int32_t middle = factors.count / 2;
  return Multiply_Digits(Exact_Product(factors.part(0, middle)),
                         Exact_Product(factors.part(middle, factors.count)));
}

// How many of the first products are never cut, because they have no more digits than the limit. An
// operation keeps two more, which is far beyond what the logarithms can be wrong by.
std::int32_t Count_Of_Exact(const Factors& factors, double limit) {
  double digits = 0;
  for (std::int32_t place = 0; place < factors.count; ++place) {
    digits += std::log10(static_cast<double>(factors[place]));
    if (digits > limit) return place;
  }
  return factors.count;
}

// The product, each step of it cut to the limit. The zeros of cut ones are not written out.
Decimal Product_Of(const Factors& factors, double limit) {
  if (factors.count > 0 && !Can_Multiply()) return Decimal_Token(value_token);
  const std::int32_t exact = Count_Of_Exact(factors, limit);
  Decimal product = Significant_Digits(Exact_Product(factors.part(0, exact)));
  if (exact == factors.count) return product;
  const Steps steps(limit);
  Step_Number cut(product);
  for (std::int32_t place = exact; place < factors.count; ++place) {
    Yield();
    steps.multiply(cut, Step_Number(factors[place]));
  }
  return cut.decimal();
}

// The product as the call asks for it.
NumberText Formatted_Product(const Factors& factors, const Format_Arguments& format) {
  const double limit =
      Restrictionator({.maximum_significant_digits = format.maximum_significant_digits}).maxSD;
  return Close_Number(Product_Of(factors, limit), format);
}

// The whole part as a float. Arithmetic takes fewer texts for numbers than a cell does: no blanks
// around them, and exponents only with their sign.
double Whole_Part(std::string_view text) {
  const NumberText whole = Int_Function(text);
  if (Has_Token_Mark(whole)) {
    throw Run_Time_Failure(Failure_Number::type_mismatch,
                           Shown_Text(text) + " is not a number that can be cut.");
  }
  return Text_To_Number(whole);
}

bool Is_Refused(std::string_view text, double number, double largest) {
  return !Is_Positive(text) || number > largest;
}

}  // namespace

NumberText Fact_Function(const HostValue& num, const Format_Arguments& format) {
  std::string scratch;
  const std::string_view text = Text_Of(num, scratch);
  const double number = To_Number(num);
  if (Is_Refused(text, number, largest_factorial)) return NumberText(num_token);
  // The number can be negative although its text isn't: TRUE is -1.
  const auto count = static_cast<std::int32_t>(std::fmax(number, 0));
  return Formatted_Product({1, 1, count}, format);
}

NumberText FactDouble_Function(const HostValue& num, const Format_Arguments& format) {
  std::string scratch;
  const std::string_view text = Text_Of(num, scratch);
  const double number = To_Number(num);
  if (Is_Refused(text, number, largest_double_factorial)) return NumberText(num_token);
  const auto whole = static_cast<std::int32_t>(Whole_Part(text));
  return Formatted_Product({whole, -2, (whole + 1) / 2}, format);
}

// A result keeps a digit less than steps do. One that may be too long for a cell goes by its text.
Step_Number Running_Factorial::next() {
  const double limit = Default_MaxSD();
  if (next_ > 0) Steps(limit).multiply(product_, Step_Number(next_));
  ++next_;
  const auto digits = Whole_Digits_Of(limit);
  if (!digits || !product_.is_in_limbs() ||
      static_cast<double>(Plain_Length(product_)) >= longest_cell_text) {
    return Step_Number(Close_Number(product_.decimal(), {}));
  }
  limbs::Number rounded;
  limbs::Add(product_.in_limbs(), {}, false, *digits + 1, rounded);
  return Step_Number(std::move(rounded));
}

}  // namespace quorvex
