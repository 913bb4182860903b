#include "arith/limbs/small_product.h"

#include <algorithm>

#include "arith/limbs/limb_division.h"
#include "expects.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Wide;

struct Pair {
  Limb high;
  Limb low;
};

Pair Read_Digits(std::string_view digits) {
  if (digits.size() <= limbs::digits) return {0, limbs::Read(digits)};
  const std::size_t high = digits.size() - limbs::digits;
  return {limbs::Read(digits.substr(0, high)), limbs::Read(digits.substr(high))};
}

Pair Read(const Decimal_Parts& parts) {
  const auto& [integer, fraction] = parts;
  if (fraction.empty()) return Read_Digits(integer);
  std::array<char, most_small_digits> joined;
  char* const middle = std::copy(integer.begin(), integer.end(), joined.data());
  char* const end = std::copy(fraction.begin(), fraction.end(), middle);
  return Read_Digits({joined.data(), end});
}

// A column becomes its lowest limb; what is left is returned.
Limb Part(Wide column, Limb& limb) {
  limb = limbs::Take_Limb(column);
  return static_cast<Limb>(column);
}

// The limbs of the product, least first. Each column is parted before what it gets from below is
// added, so that none waits for another.
std::size_t Multiply(const Pair& a, const Pair& b, std::array<Limb, 4>& out) {
  const Limb first = Part(Wide{a.low} * b.low, out[0]);
  if ((a.high | b.high) == 0) {
    out[1] = first;
    return 2;
  }
  const Limb second = Part(Wide{a.low} * b.high + Wide{a.high} * b.low, out[1]);
  const Limb third = Part(Wide{a.high} * b.high, out[2]);
  const auto carry = [](Limb& limb, Limb more) {
    limb += more;
    const Limb bases =
        static_cast<Limb>(limb >= limbs::base) + static_cast<Limb>(limb >= 2 * limbs::base);
    limb -= bases * limbs::base;
    return bases;
  };
  out[3] = third + carry(out[2], second + carry(out[1], first));
  return 4;
}

}  // namespace

Small_Product::Small_Product(const Plain_Number& a, const Plain_Number& b)
    : decimals_(a.parts.fraction.size() + b.parts.fraction.size()),
      negative_(a.negative != b.negative) {
  Expects(Is_Small(a) && Is_Small(b));
  first_ = end_ = text_.data() + text_.size();
  std::array<Limb, 4> product;
  std::size_t count = Multiply(Read(a.parts), Read(b.parts), product);
  while (count > 0 && product[count - 1] == 0) --count;
  if (count == 0) return;
  char* place = end_;
  for (std::size_t i = 0; i < count; ++i) limbs::Write(place -= limbs::digits, product[i]);
  first_ = place + limbs::digits - limbs::Count_Digits(product[count - 1]);
}

void Small_Product::set_separator() {
  char* const fraction = text_.data() + text_.size() - decimals_;
  if (first_ >= fraction) {
    std::fill(fraction - 1, first_, '0');
    first_ = fraction - 1;
  }
  const std::string& separator = Decimal_Separator();
  char* const first = first_ - separator.size();
  std::copy(first_, fraction, first);
  std::copy(separator.begin(), separator.end(), fraction - separator.size());
  first_ = first;
}

NumberText Small_Product::text() {
  if (is_zero()) return "0";
  std::size_t decimals = decimals_;
  for (; decimals > 0 && end_[-1] == '0'; --decimals) --end_;
  if (decimals > 0) set_separator();
  if (negative_) *--first_ = '-';
  return {first_, end_};
}

}  // namespace quorvex
