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

// The sum of two fractions; beyond the shorter one it is the longer one's digits. The carry that
// runs over.
bool Add_Fractions(char* out, std::string_view longer, std::string_view shorter) {
  const std::size_t both = shorter.size();
  std::memcpy(out + both, longer.data() + both, longer.size() - both);
  return digit_spans::Add(out, longer.data(), shorter.data(), both, false);
}

// The sum of two integer parts and a carry. The carry that runs over.
bool Add_Integers(char* out, std::string_view longer, std::string_view shorter, bool carry) {
  const std::size_t head = longer.size() - shorter.size();
  carry = digit_spans::Add(out + head, longer.data() + head, shorter.data(), shorter.size(), carry);
  return head == 0 ? carry : digit_spans::Add_Carry(out, longer.data(), head, carry);
}

}  // namespace

NumberText Add_Decimals(const Decimal_Parts& a, const Decimal_Parts& b) {
  const auto by_size = [](std::string_view x, std::string_view y) { return x.size() < y.size(); };
  const auto [shorter, longer] = std::minmax(a.integer, b.integer, by_size);
  const auto [less, more] = std::minmax(a.fraction, b.fraction, by_size);

  NumberText sum(longer.size() + more.size() + room_for_marks, '0');
  sum.resize(longer.size() + more.size());
  char* const fraction = sum.data() + longer.size();
  bool carry = !more.empty() && Add_Fractions(fraction, more, less);
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
