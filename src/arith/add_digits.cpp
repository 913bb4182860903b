#include "arith/add_digits.h"

#include <algorithm>
#include <cstring>

#include "arith/digit_check.h"
#include "arith/digit_spans.h"
#include "host/platform.h"

namespace quorvex {
namespace {

// Room for what formatting puts beside the digits, so that the sum is the one text allocated.
constexpr std::size_t room_for_marks = 8;

// The sum of two integer parts below `carry`, into the end of `out`. The carry that runs over.
bool Add_Integers(char* out, std::string_view longer, std::string_view shorter, bool carry) {
  const std::size_t head = longer.size() - shorter.size();
  carry = digit_spans::Add(out + head, longer.data() + head, shorter.data(), shorter.size(), carry);
  return digit_spans::Add_Carry(out, longer.data(), head, carry);
}

}  // namespace

NumberText Add_Decimals(const Decimal_Parts& a, const Decimal_Parts& b) {
  const auto by_size = [](std::string_view x, std::string_view y) { return x.size() < y.size(); };
  const auto [shorter, longer] = std::minmax(a.integer, b.integer, by_size);
  const auto [less, more] = std::minmax(a.fraction, b.fraction, by_size);

  NumberText sum;
  sum.reserve(longer.size() + more.size() + room_for_marks);
  sum.resize(longer.size() + more.size());
  char* const fraction = sum.data() + longer.size();
  const std::size_t tail = more.size() - less.size();
  if (tail > 0) std::memcpy(fraction + less.size(), more.data() + less.size(), tail);
  bool carry = digit_spans::Add(fraction, more.data(), less.data(), less.size(), false);
  carry = Add_Integers(sum.data(), longer, shorter, carry);
  if (carry) sum.insert(0, 1, '1');
  return sum;
}

NumberText Add_Digits(std::string_view operand1, std::string_view operand2) {
  Require_Digits(operand1);
  Require_Digits(operand2);
  return Add_Decimals({operand1, {}}, {operand2, {}});
}

}  // namespace quorvex
