#include "exact_numbers.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>

#include "host/platform.h"

namespace quorvex::windows {
namespace {

constexpr std::size_t digits_of_a_float = 15;

__extension__ using Wide = unsigned __int128;

std::string Digits_Of(Wide number) {
  std::string digits;
  do {
    digits += static_cast<char>('0' + static_cast<int>(number % 10));
    number /= 10;
  } while (number != 0);
  std::ranges::reverse(digits);
  return digits;
}

HostValue From_Scaled(Wide size, std::size_t places, bool is_negative) {
  while (places > 0 && size % 10 == 0) {
    size /= 10;
    --places;
  }
  std::string digits = Digits_Of(size);
  const bool fits = digits.size() <= digits_of_a_float;
  if (digits.size() <= places) digits.insert(0, places - digits.size() + 1, '0');
  if (is_negative && size != 0) digits.insert(0, 1, '-');
  if (fits) {
    if (places > 0) digits.insert(digits.size() - places, 1, '.');
    double number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
  }
  if (places > 0) digits.insert(digits.size() - places, Current_Separators().decimal());
  return digits;
}

}  // namespace

HostValue From_Decimal(const DECIMAL& decimal) {
  return From_Scaled((Wide{decimal.Hi32} << 64) | decimal.Lo64, decimal.scale,
                     (decimal.sign & DECIMAL_NEG) != 0);
}

HostValue From_Currency(CY currency) {
  const std::int64_t units = currency.int64;
  const auto size =
      units < 0 ? 0 - static_cast<std::uint64_t>(units) : static_cast<std::uint64_t>(units);
  return From_Scaled(size, 4, units < 0);
}

}  // namespace quorvex::windows
