#include "arith/powers/root_estimate.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

#include "host/conversions.h"
#include "host/run_time_failure.h"
#include "text/decimal.h"

namespace quorvex {
namespace {

// Short whole numbers, as most degrees are, are floats as they stand.
double Float_Of(const Step_Number& number) {
  constexpr limbs::Limb exact = limbs::Limb{1} << 53;
  if (number.is_in_limbs()) {
    const limbs::Number& limbs = number.in_limbs();
    if (limbs.count() == 1 && limbs.low == 0 && limbs.data()[0] <= exact) {
      const auto magnitude = static_cast<double>(limbs.data()[0]);
      return limbs.negative ? -magnitude : magnitude;
    }
  }
  return Text_To_Number(number.text());
}

// The 15 digits that the host writes of a finite float.
Decimal Shown_Decimal(double number) {
  constexpr int digits_behind = 14;
  std::array<char, 32> text;
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(number),
                                        std::chars_format::scientific, digits_behind)
                              .ptr;
  const char* const behind_point = text.data() + 2;
  const char* const behind_e = behind_point + digits_behind + 1;
  Decimal shown{{behind_point, digits_behind}, -digits_behind, number < 0};
  shown.digits.insert(0, 1, text.front());
  std::int64_t power = 0;
  std::from_chars(behind_e + (*behind_e == '+' ? 1 : 0), end, power);
  shown.power_of_ten += power;
  return shown;
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
  return Step_Number(Shown_Decimal(root.value_or(1)));
}

}  // namespace quorvex
