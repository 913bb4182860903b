#include "arith/division/quick_quotient.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "arith/division/quick_reciprocal.h"
#include "arith/division/quotient_limbs.h"
#include "arith/division/told_rounding.h"
#include "arith/limbs/limbs.h"
#include "expects.h"
#include "host/platform.h"
#include "text/digit_runs.h"

namespace quorvex {
namespace {

using limbs::Limb;

// Which digits the definition gives.
//
// Let p = sd + 3, and N the length of k, without the zeros at its end. The p digits of the
// reciprocal are (10^s - g) / k, s = p + N - 1, where g is what 10^s leaves of k, or k itself if
// that is nothing (quick_reciprocal.cpp); or they are one less, so that k comes to g, but only for
// N > p - 2 where what follows them begins with two zeros. So X / k loses X g / (k 10^s), which is
// g/k times what the leading digits of X, with the point behind the first one, come to as units of
// digit p of the quotient. (A tenth of that where the leading digits of X are not below those of k:
// the quotient's first digit then stands one place higher.) So digits p - 2 to p of X / k, with
// what follows, tell the rounding mostly for any g/k; and where they don't, g/k comes from digits
// p + 1, p + 2 ... of 1/k.

constexpr std::size_t guard_digits = 3;
// Digits that long division goes on behind those that are looked at, at least.
constexpr std::size_t more_digits = 2;
constexpr std::size_t more_of_reciprocal = 6;

constexpr double units_below = 2.2;  // of the last limb, what long division leaves
constexpr double slip = 1e-9;        // more than floats here are wrong by

constexpr auto tenths = [] {
  std::array<double, 2 * limbs::digits> powers{};
  for (std::size_t place = 0; place < powers.size(); ++place) {
    powers[place] = place <= limbs::digits ? 1.0 / static_cast<double>(limbs::Ten_To(place))
                                           : powers[place - limbs::digits] * powers[limbs::digits];
  }
  return powers;
}();

bool Leads(std::string_view X, std::string_view k) {
  const int order = std::memcmp(X.data(), k.data(), std::min(X.size(), k.size()));
  return order > 0 || (order == 0 && X.size() >= k.size());
}

// True if the reciprocal's digits are right from the first on: behind it stand not only zeros.
bool Begins_Beyond_Doubt(const limbs::Fraction& k, std::size_t p) {
  const Limb leading = k[0];
  const double inverse = static_cast<double>(limbs::base) / static_cast<double>(leading);
  const double behind = inverse - std::floor(inverse);
  constexpr std::size_t enough = 9;
  constexpr double unsafe = 1e-12;
  const double least = tenths[std::min(Digits_Behind_First(p), enough)];
  if (behind > least + unsafe && behind < 1 - unsafe) return true;
  // One that ends there goes on in nines.
  return k.count == 1 && static_cast<Limb>(inverse + 0.5) * leading == limbs::base;
}

// The limbs of a quotient, highest first.
class Quotient {
 public:
  Quotient(const limbs::Fraction& x, const limbs::Fraction& k, std::size_t digits)
      : count_(limbs::Count_For(digits)), limbs_(count_) {
    limbs::Divide_Fractions(x, k, count_, limbs_.data());
  }

  // What stands behind so many digits, as a fraction of their last one.
  double behind(std::size_t digits_before) {
    const std::size_t place = digits_before / limbs::digits;
    const std::size_t length = limbs::digits - digits_before % limbs::digits;
    const Limb* const limb = limbs_.data() + place;
    const double next =
        place + 1 < count_ ? static_cast<double>(limb[1]) * tenths[limbs::digits] : 0;
    return (static_cast<double>(*limb % limbs::Ten_To(length)) + next) * tenths[length];
  }

  // What that may be too low by.
  double error_behind(std::size_t digits_before) const {
    return units_below * tenths[count_ * limbs::digits - digits_before];
  }

  // Adds one to the last of so many digits. True if it runs over, and these are a 1 and zeros.
  bool raise(std::size_t digits) {
    std::size_t place = (digits - 1) / limbs::digits;
    Limb unit = limbs::Ten_To((place + 1) * limbs::digits - digits);
    for (;; --place, unit = 1) {
      Limb& limb = limbs_.data()[place];
      limb += unit;
      if (limb < limbs::base) return false;
      limb -= limbs::base;
      if (place > 0) continue;
      limb = limbs::base / 10;
      return true;
    }
  }

  // The first digits.
  NumberText text(std::size_t digits) {
    NumberText text(digits, '0');
    const std::size_t whole = digits / limbs::digits;
    const Limb* limb = limbs_.data();
    for (std::size_t place = 0; place < whole; ++place) {
      limbs::Write(text.data() + place * limbs::digits, *limb++);
      if (place % limbs::between_yields == limbs::between_yields - 1) Yield();
    }
    if (const std::size_t left = digits % limbs::digits; left > 0) {
      std::array<char, limbs::digits> last;
      limbs::Write(last.data(), *limb);
      std::copy_n(last.data(), left, text.data() + whole * limbs::digits);
    }
    return text;
  }

 private:
  std::size_t count_;
  limbs::Scratch limbs_;
};

struct Bounds {
  double low;
  double high;
};

// g/k, by the digits of 1/k behind the first p. Where it might be 0 as well as 1, or the reciprocal
// one less, it isn't told.
std::optional<Bounds> Missing_Part(const limbs::Fraction& k, std::size_t p, bool may_be_less) {
  constexpr Limb tenth = limbs::base / 10;
  if (k.count == 1 && k[0] == tenth) return Bounds{1, 1};
  Quotient inverse({&tenth, 1}, k, p + more_of_reciprocal);
  const double part = inverse.behind(p);
  const double error = inverse.error_behind(p) + slip;
  const double least = may_be_less ? 0.011 : error;
  if (part < least || part + error >= 1) return std::nullopt;
  return Bounds{part - slip, part + error};
}

Told_Rounding Round(Bounds guard, const limbs::Fraction& x, const limbs::Fraction& k, std::size_t p,
                    bool may_be_less) {
  const double most_missing = static_cast<double>(x[0]) * tenths[limbs::digits - 1] + slip;
  const Told_Rounding rounding =
      Round_Between(guard.low - (may_be_less ? 2 : 1) * most_missing, guard.high);
  if (rounding != Told_Rounding::in_doubt) return rounding;
  const std::optional<Bounds> part = Missing_Part(k, p, may_be_less);
  if (!part) return rounding;
  return Round_Between(guard.low - most_missing * part->high,
                       guard.high - (most_missing - 2 * slip) * part->low);
}

}  // namespace

std::optional<Decimal> Quick_Quotient(std::string_view X, std::string_view k, std::int32_t sd) {
  Expects(Are_Significant(X) && Are_Significant(k));
  if (sd + static_cast<std::int32_t>(guard_digits) < least_quick_precision) return std::nullopt;
  const auto kept = static_cast<std::size_t>(sd);
  const std::size_t p = kept + guard_digits;
  auto whole_digits = static_cast<std::int64_t>(X.size()) - static_cast<std::int64_t>(k.size());
  k.remove_suffix(Count_Trailing_Zeros(k));
  const std::size_t room = limbs::Count_For(p + more_of_reciprocal) + 1;
  const std::size_t k_count = std::min(limbs::Count_For(k.size()), room);
  if (k_count > limbs::most_quotient_limbs) return std::nullopt;

  const std::size_t X_count = std::min(limbs::Count_For(X.size() + 1), room);
  limbs::Scratch scratch(k_count + X_count);
  const limbs::Fraction divisor = limbs::Read_Down(k, 0, k_count, scratch.data());
  if (!Begins_Beyond_Doubt(divisor, p)) return std::nullopt;
  const bool leads = Leads(X, k);
  const limbs::Fraction dividend =
      limbs::Read_Down(X, leads ? 1 : 0, X_count, scratch.data() + k_count);
  Quotient quotient(dividend, divisor, p + more_digits);
  const double guard = 1000 * quotient.behind(kept);
  const bool may_be_less = !Ends_Beyond_Doubt(k.size(), p);
  const Told_Rounding rounding =
      Round({guard - slip, guard + 1000 * quotient.error_behind(kept) + slip}, dividend, divisor, p,
            may_be_less);
  if (rounding == Told_Rounding::in_doubt) return std::nullopt;
  if (leads) ++whole_digits;
  if (rounding == Told_Rounding::is_raised && quotient.raise(kept)) ++whole_digits;
  return Decimal{quotient.text(kept), whole_digits - sd};
}

}  // namespace quorvex
