#include "arith/powers/leading_digits.h"

#include <array>
#include <cmath>

#include "expects.h"

namespace quorvex {
namespace {

using limbs::Limb;

constexpr auto limb_digits = static_cast<std::int64_t>(limbs::digits);
constexpr auto float_base = static_cast<double>(limbs::base);

// Towards the next lower whole limb.
std::int64_t Limb_Of(std::int64_t power) {
  return (power - (power < 0 ? limb_digits - 1 : 0)) / limb_digits;
}

double Limb_At(const limbs::Number& number, std::int64_t place) {
  const bool is_there = place >= number.low && place < number.top();
  return is_there ? static_cast<double>(number.data()[place - number.low]) : 0;
}

}  // namespace

double Leading_Digits::number() const {
  return mantissa * std::pow(10.0, static_cast<double>(power));
}

Leading_Digits Scaled(double mantissa, std::int64_t power) {
  if (mantissa == 0) return {};
  for (; std::fabs(mantissa) >= 10; ++power) mantissa /= 10;
  for (; std::fabs(mantissa) < 1; --power) mantissa *= 10;
  return {mantissa, power};
}

Leading_Digits Leading_Digits_Of(const limbs::Number& number) {
  if (number.is_zero()) return {};
  const std::int64_t top = number.top() - 1;
  const auto first = static_cast<double>(number.data()[number.count() - 1]);
  const double magnitude =
      first + (Limb_At(number, top - 1) + Limb_At(number, top - 2) / float_base) / float_base;
  const std::int64_t power = limbs::Leading_Power(number);
  const auto unit =
      static_cast<double>(limbs::Ten_To(static_cast<std::size_t>(power - top * limb_digits)));
  return {(number.negative ? -magnitude : magnitude) / unit, power};
}

double Part_Behind(const limbs::Number& number, std::int64_t last) {
  Expects(!number.negative);
  const std::int64_t place = Limb_Of(last);
  const Limb unit = limbs::Ten_To(static_cast<std::size_t>(last - place * limb_digits));
  const bool is_there = place >= number.low && place < number.top();
  const Limb limb = is_there ? number.data()[place - number.low] : 0;
  const double behind =
      (Limb_At(number, place - 1) + Limb_At(number, place - 2) / float_base) / float_base;
  return (static_cast<double>(limb % unit) + behind) / static_cast<double>(unit);
}

limbs::Number Short_Number(std::int64_t whole, std::int64_t power) {
  Expects(std::abs(whole) < static_cast<std::int64_t>(limbs::base));
  const std::int64_t low = Limb_Of(power);
  const limbs::Wide shifted = limbs::Wide{static_cast<Limb>(std::abs(whole))} *
                              limbs::Ten_To(static_cast<std::size_t>(power - low * limb_digits));
  std::array<Limb, 2> both{static_cast<Limb>(shifted % limbs::base),
                           static_cast<Limb>(shifted / limbs::base)};
  limbs::Number number;
  limbs::Trim({both.data(), both.size(), low, whole < 0}, number);
  return number;
}

}  // namespace quorvex
