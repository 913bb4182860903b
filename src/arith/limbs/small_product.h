// Products of numbers of two limbs at most, from digits to digits in one go: below these lengths
// that costs less than a call of the library of products.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "arith/limbs/limbs.h"
#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// The most digits that a factor may have.
inline constexpr std::size_t most_small_digits = 2 * limbs::digits;

inline bool Is_Small(const Plain_Number& number) {
  return number.parts.integer.size() + number.parts.fraction.size() <= most_small_digits;
}

/// The product of two small numbers.
class Small_Product {
 public:
  Small_Product(const Plain_Number& a, const Plain_Number& b);
  Small_Product(const Small_Product&) = delete;
  Small_Product& operator=(const Small_Product&) = delete;

  bool is_zero() const { return first_ == end_; }

  /// The digits without their separator, as a whole number.
  std::string_view digits() const { return {first_, static_cast<const char*>(end_)}; }

  /// The product as it is written without any format: with a leading minus below zero, and without
  /// zeros that mean nothing. It takes the place of the digits.
  NumberText text();

 private:
  static constexpr std::size_t most_digits = 2 * most_small_digits;
  // For a sign, a zero, a separator, and zeros behind it.
  static constexpr std::size_t room = 8 + most_digits;

  void set_separator();

  std::array<char, room + most_digits> text_;
  char* end_;
  char* first_;
  std::size_t decimals_;
  bool negative_;
};

}  // namespace quorvex
