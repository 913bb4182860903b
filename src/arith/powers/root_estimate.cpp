#include "arith/powers/root_estimate.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>

#include "arith/limbs/limb_division.h"
#include "arith/limbs/limbs.h"
#include "arith/powers/leading_digits.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"

namespace quorvex {
namespace {

using limbs::Limb;

// So many limbs are read, and a digit for what follows them: a float is nearest to a number of
// hundreds of digits by its first ones, and by whether any others follow.
constexpr std::size_t limbs_read = 3;
constexpr std::int64_t highest_told_power = 290;

constexpr int float_bits = std::numeric_limits<double>::digits;

double Float_Of(const limbs::Number& number) {
  const std::size_t count = std::min(number.count(), limbs_read);
  std::array<char, (limbs_read + 2) * limbs::digits> text;
  char* end = text.data();
  for (std::size_t place = number.count(); place-- > number.count() - count;) {
    limbs::Write(end, number.data()[place]);
    end += limbs::digits;
  }
  *end++ = number.count() > count ? '1' : '0';
  *end++ = 'E';
  const std::int64_t power =
      (number.top() - static_cast<std::int64_t>(count)) * static_cast<std::int64_t>(limbs::digits);
  end = std::to_chars(end, text.data() + text.size(), power - 1).ptr;
  double magnitude = 0;
  std::from_chars(text.data(), end, magnitude);
  return number.negative ? -magnitude : magnitude;
}

// A number from 1 on, of limbs about its point, to 61 bits: all that follows shows in the last one.
double Float_About_Point(const limbs::Number& number) {
  const Limb whole = number.data()[number.count() - 1];
  const Limb behind = number.data()[number.count() - 2];
  const int shift = 62 - static_cast<int>(std::bit_width(whole));
  limbs::Wide column = (limbs::Wide{whole} * limbs::base + behind) << static_cast<unsigned>(shift);
  const bool has_rest = limbs::Take_Limb(column) != 0 || number.count() > 2;
  const Limb bits = static_cast<Limb>(column) | static_cast<Limb>(has_rest);
  const double magnitude = std::ldexp(static_cast<double>(bits), -shift);
  return number.negative ? -magnitude : magnitude;
}

double Float_Of(const Step_Number& number) {
  if (!number.is_in_limbs() || std::abs(number.leading_power()) > highest_told_power) {
    return Text_To_Number(number.text());
  }
  const limbs::Number& limbs = number.in_limbs();
  if (limbs.is_zero()) return 0;
  // As most degrees are.
  if (limbs.count() == 1 && limbs.low == 0) {
    const auto magnitude = static_cast<double>(limbs.data()[0]);
    return limbs.negative ? -magnitude : magnitude;
  }
  if (limbs.count() > 1 && limbs.top() == 1) return Float_About_Point(limbs);
  return Float_Of(limbs);
}

// The 15 digits that the host writes of a finite float.
constexpr int digits_behind = 14;

// By whole numbers, where they have room: the nearest number of 15 digits, and the even one of two.
std::optional<Step_Number> Shown_Number_Of_Common(double number) {
  constexpr double least = 1e-7;
  constexpr double highest = 1e14;
  constexpr auto first = static_cast<std::int64_t>(limbs::Ten_To(digits_behind));
  const double magnitude = std::fabs(number);
  if (!(magnitude >= least && magnitude < highest)) return std::nullopt;
  int exponent = 0;
  const auto bits = static_cast<Limb>(std::ldexp(std::frexp(magnitude, &exponent), float_bits));
  const auto shift = static_cast<unsigned>(float_bits - exponent);
  const limbs::Wide one = limbs::Wide{1} << shift;
  // The power of ten, or one less: 1233 / 4096 is about log10 of 2.
  std::int64_t power = ((exponent - 1) * 1233 >> 12) - 1;
  limbs::Wide scaled = 0;
  do {
    ++power;
    const auto tens = static_cast<std::size_t>(digits_behind - power);
    scaled = limbs::Wide{bits} * limbs::Ten_To(std::min(tens, limbs::digits)) *
             limbs::Ten_To(tens - std::min(tens, limbs::digits));
  } while (static_cast<std::int64_t>(scaled >> shift) >= 10 * first);
  auto digits = static_cast<std::int64_t>(scaled >> shift);
  if (digits < first) return std::nullopt;
  const limbs::Wide twice_behind = 2 * (scaled & (one - 1));
  if (twice_behind > one || (twice_behind == one && digits % 2 == 1)) ++digits;
  return Step_Number(Short_Number(number < 0 ? -digits : digits, power - digits_behind));
}

Step_Number Shown_Number_Of(double number) {
  if (auto shown = Shown_Number_Of_Common(number)) return *std::move(shown);
  std::array<char, 32> text;
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(number),
                                        std::chars_format::scientific, digits_behind)
                              .ptr;
  text[1] = text[0];  // over the point
  const char* const behind_e = text.data() + 2 + digits_behind + 1;
  std::int64_t digits = 0;
  std::int64_t power = 0;
  std::from_chars(text.data() + 1, behind_e - 1, digits);
  std::from_chars(behind_e + (*behind_e == '+' ? 1 : 0), end, power);
  return Step_Number(Short_Number(number < 0 ? -digits : digits, power - digits_behind));
}

// Nothing where floats have no root.
std::optional<double> Float_Root(double radicand, double degree) {
  if (degree == 0) return std::nullopt;
  const double root = std::pow(radicand, 1 / degree);
  if (!std::isfinite(root) || root == 0) return std::nullopt;
  return root;
}

std::optional<double> Signed_Root(double radicand, double degree) {
  if (const auto root = Float_Root(radicand, degree)) return root;
  if (const auto opposite = Float_Root(-radicand, degree)) return -*opposite;
  return std::nullopt;
}

}  // namespace

Step_Number Root_Estimate(const Step_Number& radicand, const Step_Number& degree) {
  const auto root = With_Handler([&] { return Signed_Root(Float_Of(radicand), Float_Of(degree)); },
                                 [](const Run_Time_Failure&) { return std::optional<double>(); });
  return Shown_Number_Of(root.value_or(1));
}

}  // namespace quorvex
