// Operands that are hard on products, and products by two independent ways.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "native/multiply.h"

namespace quorvex::native {

/// The ways in which Hard_Digits fills a text.
inline constexpr unsigned digit_patterns = 8;

/// A text of `count` digits, the first of them not zero: random, all nines, a power of ten, sparse,
/// alternating, long runs of 0 and 9, or one above or below a power of ten.
std::string Hard_Digits(std::size_t count, unsigned pattern, unsigned seed);

/// Digit by digit, as by hand. For short operands.
std::string Product_By_Hand(std::string_view a, std::string_view b);

/// The product by Multiply_Texts, or what went wrong beyond the digits: a wrong count, a byte
/// changed behind the product or beside the buffer.
std::string Product_Of(std::string_view a, std::string_view b, Instructions kind);

/// All kinds that this machine has.
std::vector<Instructions> Kinds_Here();

}  // namespace quorvex::native
