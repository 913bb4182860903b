#include "lists/magnitude_sum.h"

#include <algorithm>
#include <utility>

#include "arith/digit_spans.h"
#include "host/platform.h"

namespace quorvex {
namespace {

// Room for as many digits as are there and for those that are needed, so that digits are moved only
// when their number has doubled.
std::size_t Room(std::size_t there, std::size_t needed) {
  constexpr std::size_t least = 64;
  return needed <= there ? there : std::max(least, 2 * needed);
}

}  // namespace

void Magnitude_Sum::make_room(std::size_t integer, std::size_t fraction) {
  const std::size_t front = Room(point_, integer + 1);
  const std::size_t behind = Room(digits_.size() - point_, fraction);
  if (front == point_ && behind == digits_.size() - point_) return;
  Require_Memory(static_cast<double>(front) + static_cast<double>(behind));
  std::string roomy(front + behind, '0');
  roomy.replace(front - integer_digits(), end_ - begin_, digits_, begin_, end_ - begin_);
  begin_ = front - integer_digits();
  end_ = front + fraction_digits();
  point_ = front;
  digits_ = std::move(roomy);
}

void Magnitude_Sum::add(const Decimal_Parts& addend) {
  const std::size_t integer = addend.integer.size();
  const std::size_t fraction = addend.fraction.size();
  make_room(std::max(integer, integer_digits()), fraction);
  begin_ = std::min(begin_, point_ - integer);
  end_ = std::max(end_, point_ + fraction);

  char* const digits = digits_.data();
  char* const point = digits + point_;
  bool carry =
      fraction > 0 && digit_spans::Add(point, point, addend.fraction.data(), fraction, false);
  char* const head = point - integer;
  carry = digit_spans::Add(head, head, addend.integer.data(), integer, carry);
  if (carry) digit_spans::Add_Carry(digits, digits, point_ - integer, carry);
  if (digits[begin_ - 1] != '0') --begin_;
}

Decimal_Parts Magnitude_Sum::parts() const {
  const std::string_view all = digits_;
  return {all.substr(begin_, integer_digits()), all.substr(point_, fraction_digits())};
}

}  // namespace quorvex
