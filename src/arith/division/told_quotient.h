// Quotients by long division in limbs, and how the definition of division rounds them.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "arith/digits/digit_spans.h"
#include "arith/division/quick_reciprocal.h"
#include "arith/division/quotient_limbs.h"
#include "arith/division/told_rounding.h"
#include "arith/limbs/limbs.h"
#include "host/host_value.h"
#include "host/platform.h"
#include "text/digit_runs.h"

namespace quorvex {

/// How many digits of a quotient are asked for, and what for.
struct Quotient_Limit {
  explicit Quotient_Limit(std::size_t digits_kept)
      : kept(digits_kept), p(digits_kept + division_guard_digits) {}

  /// The limbs of an operand that are looked at.
  std::size_t most_limbs() const;

  std::size_t kept;
  std::size_t p;
  bool may_be_less = false;  // what the definition takes for the reciprocal
};

/// The limbs of a quotient of fractions, highest first.
class Told_Quotient {
 public:
  // Digits that long division goes on behind the p digits that are looked at, at least.
  static constexpr std::size_t more_digits = 2;
  static constexpr std::size_t more_of_reciprocal = 6;

  explicit Told_Quotient(std::size_t digits) : count_(limbs::Count_For(digits)), limbs_(count_) {}

  std::size_t count() const { return count_; }
  limbs::Limb* data() { return limbs_.data(); }

  void divide(limbs::Fraction x, limbs::Fraction k) {
    limbs::Divide_Fractions(x, k, count_, limbs_.data());
  }

  /// What stands behind so many digits, as a fraction of their last one.
  double behind(std::size_t digits_before) {
    const std::size_t place = digits_before / limbs::digits;
    const std::size_t length = limbs::digits - digits_before % limbs::digits;
    const limbs::Limb* const limb = limbs_.data() + place;
    const double next = place + 1 < count_ ? To_Double(limb[1]) * tenths[limbs::digits] : 0;
    return (To_Double(*limb % limbs::Ten_To(length)) + next) * tenths[length];
  }

  /// What that may be too low by.
  double error_behind(std::size_t digits_before) const {
    return units_below * tenths[count_ * limbs::digits - digits_before];
  }

  /// What becomes of the digits that are kept of x / k.
  Told_Rounding rounding(limbs::Fraction x, limbs::Fraction k, const Quotient_Limit& limit) {
    const double guard = 1000 * behind(limit.kept);
    const double error = 1000 * error_behind(limit.kept);
    const Loss loss{To_Double(x[0]) * tenths[limbs::digits - 1], limit.may_be_less};
    return Round_Less({guard - slip, guard + error + slip}, loss,
                      [&] { return Part_Lost(k, limit.p, loss); });
  }

  /// Adds one to the last of so many digits. True if it runs over, and these are a 1 and zeros.
  bool raise(std::size_t digits) {
    std::size_t place = (digits - 1) / limbs::digits;
    limbs::Limb unit = limbs::Ten_To((place + 1) * limbs::digits - digits);
    for (;; --place, unit = 1) {
      limbs::Limb& limb = limbs_.data()[place];
      limb += unit;
      if (limb < limbs::base) return false;
      limb -= limbs::base;
      if (place > 0) continue;
      limb = limbs::base / 10;
      return true;
    }
  }

  /// The first digits.
  void write(std::size_t digits, NumberText& text) {
    const std::size_t count = limbs::Count_For(digits);
    text.resize(count * limbs::digits + room_for_marks);
    char* out = text.data();
    const limbs::Limb* limb = limbs_.data();
    for (std::size_t left = count; left > 0; --left) {
      limbs::Write(out, *limb++);
      out += limbs::digits;
      if (left % limbs::between_yields == 0) Yield();
    }
    text.resize(digits);
  }

  /// True if the digits of the definition's reciprocal of k are right from the first on: behind it
  /// stand not only zeros.
  static bool Begins_Beyond_Doubt(limbs::Fraction k, std::size_t p) {
    const limbs::Limb leading = k[0];
    const double inverse = To_Double(limbs::base) / To_Double(leading);
    const double behind = inverse - To_Double(static_cast<limbs::Limb>(inverse));
    constexpr std::size_t enough = 9;
    constexpr double unsafe = 1e-12;
    const double least = tenths[std::min(Digits_Behind_First(p), enough)];
    if (behind > least + unsafe && behind < 1 - unsafe) return true;
    // One that ends there goes on in nines.
    return k.count == 1 && static_cast<limbs::Limb>(std::llround(inverse)) * leading == limbs::base;
  }

 private:
  static constexpr double units_below = 2.2;  // of the last limb, what long division leaves
  static constexpr double slip = 1e-9;        // more than floats here are wrong by

  static constexpr auto tenths = [] {
    std::array<double, 2 * limbs::digits> powers{};
    for (std::size_t place = 0; place < powers.size(); ++place) {
      powers[place] = place <= limbs::digits
                          ? 1.0 / static_cast<double>(limbs::Ten_To(place))
                          : powers[place - limbs::digits] * powers[limbs::digits];
    }
    return powers;
  }();

  // A number below 2^63, which converts sooner as one with a sign.
  static double To_Double(limbs::Limb limb) {
    return static_cast<double>(static_cast<std::int64_t>(limb));
  }

  // g/k, by the digits of 1/k behind the first p.
  static std::optional<Bounds> Part_Lost(limbs::Fraction k, std::size_t p, const Loss& loss);

  std::size_t count_;
  limbs::Scratch limbs_;
};

inline std::size_t Quotient_Limit::most_limbs() const {
  return limbs::Count_For(p + Told_Quotient::more_of_reciprocal) + 1;
}

}  // namespace quorvex
