#include "lists/column_sum.h"

#include <algorithm>

#include "arith/limbs/limbs.h"
#include "expects.h"
#include "text/digit_words.h"

namespace quorvex {
namespace {

constexpr std::uint64_t lane_bytes = 0x00FF00FF00FF00FFU;
constexpr unsigned lane_bits = 16;

// What a byte takes, and how many such bytes a lane that held a digit takes.
constexpr unsigned most_in_bytes = 0xFF / 9;
constexpr unsigned most_in_lanes = (0xFFFF - 9) / (9 * most_in_bytes);

std::uint64_t Values(std::string_view digits) {
  return digit_words::Load(digits.data()) - digit_words::zeros;
}

// The values of fewer than eight digits, in the highest bytes.
std::uint64_t Few_Values(std::string_view digits) {
  return digit_words::Load_Few(digits.data(), digits.size()) & digit_words::Repeat(0x0F);
}

// A lane as a digit, and the carry.
std::uint64_t Digit_Of(std::uint64_t lane, unsigned shift, std::uint64_t& carry) {
  carry += lane >> shift & 0xFFFF;
  const std::uint64_t digit = carry % 10;
  carry /= 10;
  return digit << shift;
}

}  // namespace

// Clears words before they are used for the first time.
void Column_Sum::reach(std::size_t first, std::size_t end) {
  for (; first_ > first; --first_)
    bytes_[first_ - 1] = odd_lanes_[first_ - 1] = even_lanes_[first_ - 1] = 0;
  for (; end_ < end; ++end_) bytes_[end_] = odd_lanes_[end_] = even_lanes_[end_] = 0;
}

void Column_Sum::add(const Decimal_Parts& addend) {
  Expects(has_room_for(addend));
  std::string_view integer = addend.integer;
  std::string_view fraction = addend.fraction;
  reach(point - (integer.size() + word - 1) / word, point + (fraction.size() + word - 1) / word);
  std::uint64_t* column = bytes_.data() + point;
  for (; integer.size() >= word; integer.remove_suffix(word)) {
    *--column += Values(integer.substr(integer.size() - word));
  }
  if (!integer.empty()) *--column += Few_Values(integer) >> 8 * (word - integer.size());
  column = bytes_.data() + point;
  for (; fraction.size() >= word; fraction.remove_prefix(word)) *column++ += Values(fraction);
  if (!fraction.empty()) *column += Few_Values(fraction);

  longest_integer_ = std::max(longest_integer_, addend.integer.size());
  longest_fraction_ = std::max(longest_fraction_, addend.fraction.size());
  ++count_;
  if (++in_bytes_ == most_in_bytes) spread_bytes();
}

void Column_Sum::spread_bytes() {
  for (std::size_t place = first_; place < end_; ++place) {
    odd_lanes_[place] += bytes_[place] & lane_bytes;
    even_lanes_[place] += bytes_[place] >> 8U & lane_bytes;
    bytes_[place] = 0;
  }
  in_bytes_ = 0;
  if (++in_lanes_ == most_in_lanes) carry();
}

void Column_Sum::carry() {
  std::uint64_t carry = 0;
  for (std::size_t place = end_; place > first_ || carry > 0;) {
    --place;
    reach(place, end_);
    std::uint64_t odd = 0;
    std::uint64_t even = 0;
    for (unsigned shift = 0; shift < 64; shift += lane_bits) {
      odd |= Digit_Of(odd_lanes_[place], shift, carry);
      even |= Digit_Of(even_lanes_[place], shift, carry);
    }
    odd_lanes_[place] = odd;
    even_lanes_[place] = even;
  }
  in_lanes_ = 0;
}

std::size_t Column_Sum::integer_digits() const {
  return is_empty() ? 0 : longest_integer_ + limbs::Count_Digits(count_);
}

Decimal_Parts Column_Sum::parts() {
  spread_bytes();
  carry();
  for (std::size_t place = first_; place < end_; ++place) {
    digit_words::Store(digits_.data() + place * word,
                       (even_lanes_[place] << 8U | odd_lanes_[place]) + digit_words::zeros);
  }
  const std::string_view all(digits_.data(), digits_.size());
  return {all.substr(first_ * word, (point - first_) * word),
          all.substr(point * word, longest_fraction_)};
}

void Column_Sum::clear() {
  first_ = end_ = point;
  longest_integer_ = longest_fraction_ = 0;
  count_ = 0;
  in_bytes_ = in_lanes_ = 0;
}

}  // namespace quorvex
