#include "arith/division/quick_quotient.h"

#include <algorithm>
#include <array>

#include "arith/division/limb_reciprocal.h"
#include "arith/division/quick_reciprocal.h"
#include "arith/limbs/limb_division.h"
#include "arith/limbs/limbs.h"
#include "arith/limbs/short_product.h"
#include "expects.h"
#include "host/platform.h"
#include "text/digit_runs.h"

namespace quorvex {
namespace {

using limbs::Limb;
using limbs::Wide;

// Digits of limbs that come highest first.
class Digit_Writer {
 public:
  explicit Digit_Writer(std::size_t wanted)
      : digits_(wanted + 2 * limbs::digits, '0'), wanted_(wanted) {}

  bool has_all() const { return count_ >= wanted_; }
  bool has_none() const { return count_ == 0; }

  void write(Limb limb) {
    char* const place = digits_.data() + count_;
    limbs::Write(place, limb);
    count_ += limbs::digits;
    if (count_ > limbs::digits) return;
    // The first one, without the zeros in front.
    count_ = limbs::Count_Digits(limb);
    std::copy_n(place + limbs::digits - count_, count_, place);
  }

  // `length` is that of the number, `count_` what there is of it and perhaps of zeros behind.
  Decimal take(std::size_t length) && {
    digits_.resize(std::min({count_, wanted_, length}));
    const std::size_t left = length - digits_.size();
    return {std::move(digits_), static_cast<std::int64_t>(left)};
  }

 private:
  NumberText digits_;
  std::size_t wanted_;
  std::size_t count_ = 0;
};

// x base^a - x g as limbs from the lowest, for a g of two limbs.
class Minuend {
 public:
  Minuend(const Limb* x, std::size_t x_count, std::size_t a, Wide g)
      : x_(x), x_count_(x_count), a_(a), low_(limbs::Take_Limb(g)), high_(static_cast<Limb>(g)) {}

  Limb next() {
    column_ += Wide{low_} * at(place_);
    if (place_ > 0) column_ += Wide{high_} * at(place_ - 1);
    const Limb less = limbs::Take_Limb(column_) + borrow_;
    const Limb minuend = place_ < a_ ? 0 : at(place_ - a_);
    borrow_ = minuend < less ? 1 : 0;
    ++place_;
    return minuend - less + borrow_ * limbs::base;
  }

 private:
  Limb at(std::size_t place) const { return place < x_count_ ? x_[place] : 0; }

  const Limb* x_;
  std::size_t x_count_;
  std::size_t a_;
  Limb low_;
  Limb high_;
  Wide column_ = 0;
  Limb borrow_ = 0;
  std::size_t place_ = 0;
};

// The same in two words, where divisor, dividend and reciprocal have no more digits than a limb.
std::optional<Decimal> Divide_In_Words(std::string_view X, const limbs::Divisor& k,
                                       std::size_t length, std::size_t p) {
  const std::optional<Limb> g = Missing_From_Power(k, length, p);
  if (!g) return std::nullopt;
  const Wide power = Wide{limbs::Ten_To(p)} * limbs::Ten_To(length - 1);
  const Wide product = (power - *g) / k.number() * limbs::Read(X);
  // It has the digits of both factors, or one less.
  std::size_t left = X.size();
  if (product < Wide{limbs::Ten_To(p)} * limbs::Ten_To(X.size() - 1)) --left;
  std::array<char, limbs::digits> digits;
  limbs::Write(digits.data(), static_cast<Limb>(product / limbs::Ten_To(left)));
  return Decimal{NumberText(digits.end() - p, digits.end()), static_cast<std::int64_t>(left)};
}

// Let the reciprocal's digits be (10^s - g) / k. Then the product is (X 10^s - X g) / k without a
// rest, and its first digits are those of a division from the left, in one pass.
std::optional<Decimal> Divide_By_Limb(std::string_view X, std::string_view k_digits,
                                      std::size_t p) {
  const limbs::Divisor k(limbs::Read(k_digits));
  if (X.size() <= limbs::digits && p <= limbs::digits) {
    return Divide_In_Words(X, k, k_digits.size(), p);
  }
  Require_Memory(2.0 * static_cast<double>(X.size() + p));
  const std::optional<Limb> g = Missing_From_Power(k, k_digits.size(), p);
  if (!g) return std::nullopt;
  const std::size_t s = p + k_digits.size() - 1;
  const std::size_t a = limbs::Count_For(s);
  const std::size_t padding = a * limbs::digits - s;

  const std::size_t x_count = limbs::Count_For(X.size());
  const std::size_t count = x_count + a + 1;
  limbs::Scratch scratch(x_count + count);
  Limb* const x = scratch.data();
  Limb* const minuend = x + x_count;
  limbs::Read_Number(X, x);
  Minuend difference(x, x_count, a, Wide{*g} * limbs::Ten_To(padding));
  for (std::size_t place = 0; place < count; ++place) {
    minuend[place] = difference.next();
    if (place % limbs::between_yields == limbs::between_yields - 1) Yield();
  }

  Digit_Writer writer(p);
  std::size_t length = 0;
  Limb rest = 0;
  for (std::size_t place = count; place-- > 0 && !writer.has_all();) {
    const Limb quotient = k.divide(rest, minuend[place]);
    if (quotient == 0 && writer.has_none()) continue;
    if (writer.has_none()) length = limbs::Count_Digits(quotient) + place * limbs::digits - padding;
    writer.write(quotient);
    if (place % limbs::between_yields == 0) Yield();
  }
  return std::move(writer).take(length);
}

// Below these lengths, the products of limbs cost less than calls of the library of products.
constexpr std::size_t few_digits = 126;
constexpr std::size_t few = limbs::Count_For(few_digits);

// The digits of the reciprocal as limbs, the lowest first, scaled by ten to `padding`. False where
// they can't be told.
struct Short_Inverse {
  std::array<Limb, few + 1> limbs;
  std::size_t count;
  std::size_t padding;
};

bool Find_Inverse(std::string_view k, std::size_t p, Short_Inverse& inverse) {
  const std::size_t n = limbs::Count_For(k.size());
  std::array<Limb, few> divisor;
  std::array<std::int64_t, few> rest;
  limbs::Read_Fraction(k, n, divisor.data());
  const std::size_t behind = limbs::Count_For(p - 1);
  inverse.count = behind + 1;
  inverse.padding = behind * limbs::digits - (p - 1);
  Limb* const quotient = inverse.limbs.data();
  const bool ends = limbs::Divide_Into_One(divisor.data(), n, quotient, inverse.count, rest.data());
  if (ends) {
    // Just below the end.
    std::size_t place = behind;
    for (; quotient[place] == 0; --place) quotient[place] = limbs::base - 1;
    --quotient[place];
  }
  const std::size_t looked_at = std::min(Digits_Behind_First(p), limbs::digits);
  if (quotient[1] < limbs::Ten_To(limbs::digits - looked_at)) return false;
  quotient[behind] -= quotient[behind] % limbs::Ten_To(inverse.padding);
  std::reverse(quotient, quotient + inverse.count);
  return true;
}

std::optional<Decimal> Divide_By_Few(std::string_view X, std::string_view k, std::size_t p) {
  Short_Inverse inverse;
  if (!Find_Inverse(k, p, inverse)) return std::nullopt;
  const std::size_t x_count = limbs::Count_For(X.size());
  std::array<Limb, few> x;
  std::array<Limb, 2 * few + 1> product;
  limbs::Read_Number(X, x.data());
  limbs::Multiply(product.data(), x.data(), x_count, inverse.limbs.data(), inverse.count);

  std::size_t place = x_count + inverse.count;
  while (product[place - 1] == 0) --place;
  const std::size_t length =
      limbs::Count_Digits(product[place - 1]) + (place - 1) * limbs::digits - inverse.padding;
  Digit_Writer writer(p);
  while (place > 0 && !writer.has_all()) writer.write(product[--place]);
  return std::move(writer).take(length);
}

}  // namespace

std::optional<Decimal> Quick_Quotient(std::string_view X, std::string_view k, std::int32_t p) {
  Expects(Are_Significant(X) && Are_Significant(k));
  if (p < least_quick_precision) return std::nullopt;
  const auto precision = static_cast<std::size_t>(p);
  const auto significant = k.substr(0, k.size() - Count_Trailing_Zeros(k));
  if (significant.size() <= short_divisor_digits) {
    return Divide_By_Limb(X, significant, precision);
  }
  const bool is_short = X.size() <= few_digits && significant.size() <= few_digits &&
                        precision <= few_digits && Ends_Beyond_Doubt(significant.size(), precision);
  if (!is_short) return std::nullopt;
  return Divide_By_Few(X, significant, precision);
}

}  // namespace quorvex
