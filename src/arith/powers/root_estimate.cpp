#include "arith/powers/root_estimate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>

#include "arith/powers/leading_digits.h"
#include "host/conversions.h"
#include "host/run_time_failure.h"

namespace quorvex {
namespace {

constexpr double exact_in_floats = 9007199254740992;

// So many limbs are read, and a digit for what follows them: a float is nearest to a number of
// hundreds of digits by its first ones, and by whether any others follow.
constexpr std::size_t limbs_read = 3;
constexpr std::int64_t highest_told_power = 290;

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

double Float_Of(const Step_Number& number) {
  if (!number.is_in_limbs() || std::abs(number.leading_power()) > highest_told_power) {
    return Text_To_Number(number.text());
  }
  const limbs::Number& limbs = number.in_limbs();
  if (limbs.is_zero()) return 0;
  // As most degrees are.
  if (limbs.count() == 1 && limbs.low == 0) {
    const auto magnitude = static_cast<double>(limbs.data()[0]);
    if (magnitude < exact_in_floats) return limbs.negative ? -magnitude : magnitude;
  }
  return Float_Of(limbs);
}

// The 15 digits that the host writes of a finite float.
Step_Number Shown_Number_Of(double number) {
  constexpr int digits_behind = 14;
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
