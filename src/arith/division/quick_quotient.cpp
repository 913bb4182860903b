#include "arith/division/quick_quotient.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>

#include "arith/digits/digit_spans.h"
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

// A number below 2^63, which converts sooner as one with a sign.
double To_Double(Limb limb) {
  return static_cast<double>(static_cast<std::int64_t>(limb));
}

// True if the reciprocal's digits are right from the first on: behind it stand not only zeros.
bool Begins_Beyond_Doubt(limbs::Fraction k, std::size_t p) {
  const Limb leading = k[0];
  const double inverse = To_Double(limbs::base) / To_Double(leading);
  const double behind = inverse - To_Double(static_cast<Limb>(inverse));
  constexpr std::size_t enough = 9;
  constexpr double unsafe = 1e-12;
  const double least = tenths[std::min(Digits_Behind_First(p), enough)];
  if (behind > least + unsafe && behind < 1 - unsafe) return true;
  // One that ends there goes on in nines.
  return k.count == 1 && static_cast<Limb>(std::llrint(inverse)) * leading == limbs::base;
}

// The limbs of a quotient, highest first.
class Quotient {
 public:
  explicit Quotient(std::size_t digits) : count_(limbs::Count_For(digits)), limbs_(count_) {}

  void divide(limbs::Fraction x, limbs::Fraction k) {
    limbs::Divide_Fractions(x, k, count_, limbs_.data());
  }
  void set(Limb limb) { *limbs_.data() = limb; }
  void set(limbs::Pair pair) {
    limbs_.data()[0] = pair.high;
    limbs_.data()[1] = pair.low;
  }

  // What stands behind so many digits, as a fraction of their last one.
  double behind(std::size_t digits_before) {
    const std::size_t place = digits_before / limbs::digits;
    const std::size_t length = limbs::digits - digits_before % limbs::digits;
    const Limb* const limb = limbs_.data() + place;
    const double next = place + 1 < count_ ? To_Double(limb[1]) * tenths[limbs::digits] : 0;
    return (To_Double(*limb % limbs::Ten_To(length)) + next) * tenths[length];
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
  void write(std::size_t digits, NumberText& text) {
    const std::size_t count = limbs::Count_For(digits);
    text.resize(count * limbs::digits + room_for_marks);
    char* out = text.data();
    const Limb* limb = limbs_.data();
    for (std::size_t left = count; left > 0; --left) {
      limbs::Write(out, *limb++);
      out += limbs::digits;
      if (left % limbs::between_yields == 0) Yield();
    }
    text.resize(digits);
  }

 private:
  std::size_t count_;
  limbs::Scratch limbs_;
};

// g/k, by the digits of 1/k behind the first p.
std::optional<Bounds> Part_Lost(limbs::Fraction k, std::size_t p, const Loss& loss) {
  constexpr Limb tenth = limbs::base / 10;
  if (k.count == 1 && k[0] == tenth) return Bounds{1, 1};
  Quotient inverse(p + more_of_reciprocal);
  inverse.divide({&tenth, 1}, k);
  return Lost_Part(inverse.behind(p), inverse.error_behind(p), loss);
}

// Both operands as fractions, the dividend behind a zero where its leading digits aren't below
// those of the divisor.
class Operands {
 public:
  Operands(std::string_view X, std::string_view k, std::size_t most_limbs)
      : scratch_(std::min(limbs::Count_For(k.size()), most_limbs) +
                 std::min(limbs::Count_For(X.size() + 1), most_limbs)) {
    const int order = std::memcmp(X.data(), k.data(), std::min(X.size(), k.size()));
    leads_ = order > 0 || (order == 0 && X.size() >= k.size());
    k_ = limbs::Read_Down(k, 0, most_limbs, scratch_.data());
    x_ = limbs::Read_Down(X, leads_ ? 1 : 0, most_limbs, scratch_.data() + k_.count);
  }
  Operands(const Operands&) = delete;
  Operands& operator=(const Operands&) = delete;

  bool leads() const { return leads_; }
  const limbs::Fraction& k() const { return k_; }
  const limbs::Fraction& x() const { return x_; }

 private:
  limbs::Scratch scratch_;
  limbs::Fraction k_;
  limbs::Fraction x_;
  bool leads_ = false;
};

// How many digits are asked for, and what for.
struct Limit {
  std::size_t kept;
  std::size_t p;
  bool may_be_less;
};

bool Write_Rounded(Quotient& quotient, limbs::Fraction x, limbs::Fraction k, const Limit& limit,
                   Decimal& result) {
  const double guard = 1000 * quotient.behind(limit.kept);
  const double error = 1000 * quotient.error_behind(limit.kept);
  const Loss loss{To_Double(x[0]) * tenths[limbs::digits - 1], limit.may_be_less};
  const Told_Rounding rounding = Round_Less({guard - slip, guard + error + slip}, loss,
                                            [&] { return Part_Lost(k, limit.p, loss); });
  if (rounding == Told_Rounding::in_doubt) return false;
  const bool runs_over = rounding == Told_Rounding::is_raised && quotient.raise(limit.kept);
  quotient.write(limit.kept, result.digits);
  result.power_of_ten =
      static_cast<std::int64_t>(runs_over) - static_cast<std::int64_t>(limit.kept);
  return true;
}

// Operands and quotient of one limb each.
bool Divide_In_Words(std::string_view X, std::string_view k, const Limit& limit, Decimal& result) {
  const Limb divisor = limbs::Read(k) * limbs::Ten_To(limbs::digits - k.size());
  if (!Begins_Beyond_Doubt({&divisor, 1}, limit.p)) return false;
  Limb dividend = limbs::Read(X) * limbs::Ten_To(limbs::digits - X.size());
  const bool leads = dividend >= divisor;
  Quotient quotient(limbs::digits);
  const Limb power = leads ? limbs::base / 10 : limbs::base;
  quotient.set(static_cast<Limb>(limbs::Wide{dividend} * power / divisor));
  if (leads) dividend /= 10;
  if (!Write_Rounded(quotient, {&dividend, 1}, {&divisor, 1}, limit, result)) return false;
  if (leads) ++result.power_of_ten;
  return true;
}

limbs::Pair Read_Pair(std::string_view text) {
  const std::string_view high = text.substr(0, limbs::digits);
  const std::string_view low = text.substr(high.size());
  return {limbs::Read(high) * limbs::Ten_To(limbs::digits - high.size()),
          limbs::Read(low) * limbs::Ten_To(limbs::digits - low.size())};
}

// Operands and quotient of two limbs each.
bool Divide_In_Pairs(std::string_view X, std::string_view k, const Limit& limit, Decimal& result) {
  const limbs::Pair divisor = Read_Pair(k);
  const std::array<Limb, 2> divisor_limbs{divisor.high, divisor.low};
  const limbs::Fraction d{divisor_limbs.data(), divisor.low == 0 ? 1U : 2U};
  if (!Begins_Beyond_Doubt(d, limit.p)) return false;
  limbs::Pair dividend = Read_Pair(X);
  const bool leads = dividend.high > divisor.high ||
                     (dividend.high == divisor.high && dividend.low >= divisor.low);
  Limb further = 0;
  if (leads) {
    constexpr Limb tenth = limbs::base / 10;
    further = dividend.low % 10 * tenth;
    dividend = {dividend.high / 10, dividend.high % 10 * tenth + dividend.low / 10};
  }
  Quotient quotient(2 * limbs::digits);
  quotient.set(limbs::Divide_Pairs(dividend, further, divisor));
  if (!Write_Rounded(quotient, {&dividend.high, 1}, d, limit, result)) return false;
  if (leads) ++result.power_of_ten;
  return true;
}

bool Divide_By_Limbs(std::string_view X, std::string_view k, const Limit& limit, Decimal& result) {
  const std::size_t room = limbs::Count_For(limit.p + more_of_reciprocal) + 1;
  if (std::min(limbs::Count_For(k.size()), room) > limbs::most_quotient_limbs) return false;
  const Operands operands(X, k, room);
  if (!Begins_Beyond_Doubt(operands.k(), limit.p)) return false;
  Quotient quotient(limit.p + more_digits);
  quotient.divide(operands.x(), operands.k());
  if (!Write_Rounded(quotient, operands.x(), operands.k(), limit, result)) return false;
  if (operands.leads()) ++result.power_of_ten;
  return true;
}

}  // namespace

bool Quick_Quotient(std::string_view X, std::string_view k, std::int32_t sd, Decimal& quotient) {
  Expects(Are_Significant(X) && Are_Significant(k));
  if (sd + static_cast<std::int32_t>(guard_digits) < least_quick_precision) return false;
  Limit limit{static_cast<std::size_t>(sd), 0, false};
  limit.p = limit.kept + guard_digits;
  const auto length = static_cast<std::int64_t>(X.size()) - static_cast<std::int64_t>(k.size());
  const std::size_t longest = std::max({X.size(), k.size(), limit.p + more_digits});
  if (longest > 2 * limbs::digits) k.remove_suffix(Count_Trailing_Zeros(k));
  limit.may_be_less = !Ends_Beyond_Doubt(k.size(), limit.p);
  const auto divide = longest <= limbs::digits       ? Divide_In_Words
                      : longest <= 2 * limbs::digits ? Divide_In_Pairs
                                                     : Divide_By_Limbs;
  if (!divide(X, k, limit, quotient)) return false;
  quotient.power_of_ten += length;
  return true;
}

}  // namespace quorvex
