#include "arith/digits/subtract_digits.h"

#include <algorithm>
#include <compare>
#include <cstring>

#include "arith/digits/digit_spans.h"
#include "text/digit_runs.h"

namespace quorvex {
namespace {

void Drop_Leading_Zeros(NumberText& digits) {
  if (!digits.empty() && digits.front() != '0') return;
  const std::size_t zeros = Count_Leading_Zeros(digits);
  if (zeros == digits.size()) {
    digits = "0";
  } else {
    digits.erase(0, zeros);
  }
}

// The fraction of the difference into `out`. The borrow that is owed.
bool Subtract_Fractions(char* out, std::string_view larger, std::string_view smaller) {
  const std::size_t both = std::min(larger.size(), smaller.size());
  bool borrow = false;
  if (larger.size() > both) {
    std::memcpy(out + both, larger.data() + both, larger.size() - both);
  } else if (smaller.size() > both) {
    borrow = digit_spans::Complement(out + both, smaller.data() + both, smaller.size() - both);
  }
  return digit_spans::Subtract(out, larger.data(), smaller.data(), both, borrow);
}

// Where `larger` is not below `smaller`, nothing is owed at the end.
NumberText Subtract_Smaller(const Decimal_Parts& larger, const Decimal_Parts& smaller) {
  const std::size_t integer = larger.integer.size();
  const std::size_t fraction = std::max(larger.fraction.size(), smaller.fraction.size());
  const std::size_t common = std::min(integer, smaller.integer.size());
  const std::size_t head = integer - common;
  // Digits of the smaller operand that stand farther left than the larger one reaches are zeros.
  const char* const smaller_digits = smaller.integer.data() + smaller.integer.size() - common;

  NumberText difference(integer + fraction + room_for_marks, '0');
  difference.resize(integer + fraction);
  char* const out = difference.data();
  bool borrow =
      fraction > 0 && Subtract_Fractions(out + integer, larger.fraction, smaller.fraction);
  borrow = digit_spans::Subtract(out + head, larger.integer.data() + head, smaller_digits, common,
                                 borrow);
  if (head > 0) digit_spans::Subtract_Borrow(out, larger.integer.data(), head, borrow);
  Drop_Leading_Zeros(difference);
  return difference;
}

}  // namespace

type_Subtraction Subtract_Decimals(const Decimal_Parts& a, const Decimal_Parts& b) {
  const bool swap = std::is_lt(Compare_Magnitudes(a, b));
  return {swap ? Subtract_Smaller(b, a) : Subtract_Smaller(a, b), swap};
}

}  // namespace quorvex
