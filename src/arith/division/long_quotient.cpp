#include "arith/division/long_quotient.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

#include "arith/digits/digit_spans.h"
#include "arith/digits/multiply_digits.h"
#include "arith/division/quick_reciprocal.h"
#include "arith/division/told_rounding.h"
#include "expects.h"
#include "host/platform.h"
#include "text/digit_runs.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

// The quotient Q of two fractions x and d, the first digit of d not 0 and x below d, to n digits
// (A. H. Karp, P. Markstein, High-precision division and square root, ACM Trans. Math. Software 23
// (1997)): y, its first h digits, comes from the reciprocal r of as many; then the rest x - d y,
// times r again, gives what is missing.
//
// r is at most 30 units of 10^-h too low, and not too high. Cutting x and y costs two units more,
// and one is taken off, so that y is above Q by no more than -1 unit and below by no more than 34,
// and the rest is between 10^(-h-1) and 10^(2-h). It is taken to three digits more than n, where
// cutting x costs less than a unit and cutting d and d y adds less than one each. So, with
// 2 h >= n + 8, the sum is too high by no more than 0.02 units of digit n, and too low by no more
// than 1.03.
constexpr std::size_t more_digits = 10;  // behind those that are looked at
constexpr std::size_t more_of_half = 4;
constexpr std::size_t more_of_rest = 3;
constexpr double unit = 1e-10;  // of digit n, as one of the last guard digit
constexpr double too_high = 0.02 * unit;
constexpr double too_low = 1.03 * unit;
constexpr double slip = 1e-9;               // more than floats here are wrong by
constexpr std::size_t leading_digits = 15;  // that a float holds

// Digits behind zeros behind a point.
struct Decimals {
  std::string_view digits;
  std::size_t zeros;
};

// `count` digits from a place behind the point on.
NumberText Cut_Out(Decimals number, std::size_t from, std::size_t count) {
  const std::size_t zeros = std::min(number.zeros > from ? number.zeros - from : 0, count);
  const std::size_t skipped = from > number.zeros ? from - number.zeros : 0;
  NumberText cut;
  cut.reserve(count);
  cut.append(zeros, '0');
  if (skipped < number.digits.size()) cut.append(number.digits.substr(skipped, count - zeros));
  cut.append(count - cut.size(), '0');
  return cut;
}

// A product of fractions that are given as whole numbers of so many decimals together.
Decimals As_Decimals(std::string_view product, std::size_t decimals) {
  return {product, decimals - product.size()};
}

double Number_Of(std::string_view digits) {
  double number = 0;
  for (const char digit : digits) number = 10 * number + (digit - '0');
  return number;
}

// The digits of the quotient; empty where no product can be formed.
NumberText Divide(const Decimals& x, std::string_view d, const NumberText& r, std::size_t n) {
  const std::size_t h = r.size();
  const NumberText product = Multiply_Digits(Cut_Out(x, 0, h + 1), r);
  if (Has_Token_Mark(product)) return {};
  NumberText y = Cut_Out(As_Decimals(product, 2 * h), 0, h);
  if (digit_spans::Subtract_Borrow(y.data(), y.data(), h, true)) return {};
  Yield();

  const NumberText divisor(d.substr(0, n + more_of_rest));
  const NumberText taken = Multiply_Digits(divisor, y);
  if (Has_Token_Mark(taken)) return {};
  const std::size_t first = h - 2;
  NumberText rest = Cut_Out(x, first, n + more_of_rest - first);
  const NumberText less =
      Cut_Out(As_Decimals(taken, divisor.size() + h), first, n + more_of_rest - first);
  digit_spans::Subtract(rest.data(), rest.data(), less.data(), rest.size(), false);
  rest.erase(0, Count_Leading_Zeros(rest));
  Yield();

  const NumberText missing = Multiply_Digits(rest, r);
  if (Has_Token_Mark(missing)) return {};
  const std::size_t dropped = std::min(missing.size(), h + more_of_rest - 1);
  digit_spans::Extend(y, n - h, std::string_view(missing).substr(0, missing.size() - dropped));
  return y;
}

// True if the reciprocal's digits are right from the first on: behind it stand not only zeros. Its
// last digit may be three units too low.
bool Begins_Beyond_Doubt(std::string_view reciprocal, std::size_t p) {
  const std::string_view behind = reciprocal.substr(1, Digits_Behind_First(p));
  return reciprocal.front() != '0' && behind.find_first_not_of('0') != std::string_view::npos &&
         behind.find_first_not_of('9') != std::string_view::npos;
}

// g/k, by the digits of 1/k behind the first p.
std::optional<Bounds> Part_Lost(std::string_view k, const NumberText& r, std::size_t p,
                                const Loss& loss) {
  const NumberText inverse = Refine_Reciprocal(k, r, p + more_digits);
  if (inverse.empty()) return std::nullopt;
  constexpr double most_too_low = 3;
  return Lost_Part(unit * Number_Of(std::string_view(inverse).substr(p)), most_too_low * unit,
                   loss);
}

}  // namespace

bool Long_Quotient(std::string_view X, std::string_view k, std::int32_t sd, Decimal& quotient) {
  Expects(Are_Significant(X) && Are_Significant(k));
  constexpr std::int32_t least = 100;
  if (sd < least) return false;
  const auto kept = static_cast<std::size_t>(sd);
  const std::size_t p = kept + division_guard_digits;
  const std::size_t n = p + more_digits;
  Require_Memory(4.0 * static_cast<double>(n));
  const auto length = static_cast<std::int64_t>(X.size()) - static_cast<std::int64_t>(k.size());
  k.remove_suffix(Count_Trailing_Zeros(k));
  const NumberText r = Leading_Reciprocal(k, n / 2 + more_of_half + 1);
  if (r.empty() || !Begins_Beyond_Doubt(r, p)) return false;
  Yield();
  const bool leads = X.substr(0, k.size()) >= k;
  NumberText digits = Divide({X, leads ? 1U : 0U}, k, r, n);
  if (digits.empty() || digits.front() == '0') return false;

  const double guard =
      Number_Of(std::string_view(digits).substr(kept, division_guard_digits + more_digits)) * unit;
  const std::string_view leading = X.substr(0, leading_digits);
  const double fraction = Number_Of(leading) * std::pow(10, -static_cast<double>(leading.size()));
  const Loss loss{leads ? fraction : 10 * fraction, !Ends_Beyond_Doubt(k.size(), p)};
  const Told_Rounding rounding = Round_Less({guard - too_high - slip, guard + too_low + slip}, loss,
                                            [&] { return Part_Lost(k, r, p, loss); });
  if (rounding == Told_Rounding::in_doubt) return false;
  digits.resize(kept);
  bool runs_over = rounding == Told_Rounding::is_raised &&
                   digit_spans::Add_Carry(digits.data(), digits.data(), kept, true);
  if (runs_over) digits.front() = '1';
  quotient.digits = std::move(digits);
  quotient.power_of_ten = length - sd + static_cast<std::int64_t>(leads) + runs_over;
  return true;
}

}  // namespace quorvex
