#include "arith/digits/add_digits.h"

#include <algorithm>
#include <cstring>

#include "arith/digits/digit_spans.h"
#include "host/platform.h"

namespace quorvex {
namespace {

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

// Whether the first digits can bring a sum to one digit more, for which a place is kept.
bool May_Run_Over(std::string_view longer, std::string_view shorter) {
  if (longer.empty()) return false;
  if (longer.size() > shorter.size()) return longer.front() == '9';
  return longer.front() + shorter.front() >= '0' + '9';
}

}  // namespace

NumberText Add_Decimals(const Decimal_Parts& a, const Decimal_Parts& b) {
  const auto by_size = [](std::string_view x, std::string_view y) { return x.size() < y.size(); };
  const auto [shorter, longer] = std::minmax(a.integer, b.integer, by_size);
  const auto [less, more] = std::minmax(a.fraction, b.fraction, by_size);

  const std::size_t front = May_Run_Over(longer, shorter) ? 1 : 0;
  NumberText sum(front + longer.size() + more.size() + room_for_marks, '0');
  sum.resize(sum.size() - room_for_marks);
  char* const integer = sum.data() + front;
  bool carry = !more.empty() && Add_Fractions(integer + longer.size(), more, less);
  carry = Add_Integers(integer, longer, shorter, carry);
  if (carry && front == 0) sum.insert(0, 1, '1');
  if (carry && front == 1) sum.front() = '1';
  if (!carry && front == 1) sum.erase(0, 1);
  return sum;
}

}  // namespace quorvex
