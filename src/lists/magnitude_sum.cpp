#include "lists/magnitude_sum.h"

#include <algorithm>
#include <utility>

#include "arith/digits/digit_spans.h"
#include "host/platform.h"

namespace quorvex {
namespace {

// A byte holds a digit's ASCII code and what these additions add to it.
constexpr unsigned most_unsettled = (255 - '9') / 9;

// From here on carrying eight digits at a time is faster.
constexpr std::size_t long_addend = 512;

// Room for as many digits as are there and for those that are needed, so that digits are moved only
// when their number has doubled.
std::size_t Room(std::size_t there, std::size_t needed) {
  constexpr std::size_t least = 64;
  return needed <= there ? there : std::max(least, 2 * needed);
}

void Add_Bytes(char* sum, std::string_view digits) {
  const char* const addend = digits.data();
  for (std::size_t i = 0; i < digits.size(); ++i) {
    sum[i] = static_cast<char>(sum[i] + addend[i] - '0');
  }
}

// Makes a byte a digit again. What is left is carried.
unsigned Settle_Byte(char& byte, unsigned carry) {
  const unsigned value = static_cast<unsigned char>(byte) - unsigned{'0'} + carry;
  byte = static_cast<char>('0' + value % 10);
  return value / 10;
}

}  // namespace

void Magnitude_Sum::make_room(std::size_t integer, std::size_t fraction) {
  const std::size_t front = Room(point_, integer + unsettled_digits);
  const std::size_t behind = Room(digits_.size() - point_, fraction);
  if (front == point_ && behind == digits_.size() - point_) return;
  Require_Memory(static_cast<double>(front) + static_cast<double>(behind));
  std::string roomy(front + behind, '0');
  settle();
  const std::size_t begin = front - (point_ - begin_);
  roomy.replace(begin, end_ - begin_, digits_, begin_, end_ - begin_);
  end_ = front + fraction_digits();
  begin_ = begin;
  point_ = front;
  digits_ = std::move(roomy);
}

void Magnitude_Sum::add(const Decimal_Parts& addend) {
  const std::size_t integer = addend.integer.size();
  const std::size_t fraction = addend.fraction.size();
  make_room(std::max(integer, point_ - begin_), fraction);
  begin_ = std::min(begin_, point_ - integer);
  end_ = std::max(end_, point_ + fraction);
  if (integer + fraction >= long_addend) return add_long(addend);

  char* const point = digits_.data() + point_;
  Add_Bytes(point - integer, addend.integer);
  Add_Bytes(point, addend.fraction);
  const bool first = unsettled_ == 0;
  unsettled_begin_ = first ? point_ - integer : std::min(unsettled_begin_, point_ - integer);
  unsettled_end_ = first ? point_ + fraction : std::max(unsettled_end_, point_ + fraction);
  if (++unsettled_ == most_unsettled) settle();
}

void Magnitude_Sum::add_long(const Decimal_Parts& addend) {
  settle();
  char* const digits = digits_.data();
  char* const point = digits + point_;
  char* const head = point - addend.integer.size();
  bool carry =
      digit_spans::Add(point, point, addend.fraction.data(), addend.fraction.size(), false);
  carry = digit_spans::Add(head, head, addend.integer.data(), addend.integer.size(), carry);
  if (carry) digit_spans::Add_Carry(digits, digits, static_cast<std::size_t>(head - digits), carry);
  if (digits[begin_ - 1] != '0') --begin_;
}

void Magnitude_Sum::settle() {
  if (unsettled_ == 0) return;
  unsigned carry = 0;
  std::size_t place = unsettled_end_;
  while (place > unsettled_begin_) carry = Settle_Byte(digits_[--place], carry);
  while (carry > 0) {
    if (place % digits_between_yields == 0) Yield();
    carry = Settle_Byte(digits_[--place], carry);
  }
  begin_ = std::min(begin_, place);
  unsettled_ = 0;
}

Decimal_Parts Magnitude_Sum::parts() {
  settle();
  const std::string_view all = digits_;
  return {all.substr(begin_, point_ - begin_), all.substr(point_, fraction_digits())};
}

}  // namespace quorvex
