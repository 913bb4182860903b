#include "arith/operation/decimal_product.h"

#include <cstdint>

#include "arith/digits/multiply_digits.h"
#include "expects.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/guard_digits.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// Beyond the length of any text, and safe to add to.
constexpr std::int64_t farthest = 1'000'000'000'000'000;

// A number that no text can hold is a token, or is beyond memory with its zeros behind the
// separator.
void Check_Size(Decimal& number) {
  if (number.power_of_ten > farthest) number = Decimal_Token(num_token);
  if (number.power_of_ten < -farthest) {
    throw Run_Time_Failure(Failure_Number::out_of_memory, "A number has too many decimals.");
  }
}

}  // namespace

Decimal Product(const Decimal& a, const Decimal& b, double limit) {
  if (a.is_token()) return a;
  if (b.is_token()) return b;
  Expects(!a.digits.starts_with('0') && !a.digits.ends_with('0'));
  Expects(!b.digits.starts_with('0') && !b.digits.ends_with('0'));
  Yield();
  Decimal product{Multiply_Digits(a.digits, b.digits), a.power_of_ten + b.power_of_ten,
                  a.negative != b.negative};
  if (product.is_token()) return Decimal_Token(value_token);
  Strip_Zeros(product);
  Round(product, Digits_Of_Result(limit));
  Check_Size(product);
  return product;
}

}  // namespace quorvex
