#include "arith/division/quick_quotient.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "arith/division/quick_reciprocal.h"
#include "arith/division/quotient_limbs.h"
#include "arith/division/told_quotient.h"
#include "arith/division/told_rounding.h"
#include "arith/limbs/limbs.h"
#include "expects.h"
#include "text/digit_runs.h"

namespace quorvex {
namespace {

using limbs::Limb;

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

bool Write_Rounded(Told_Quotient& quotient, limbs::Fraction x, limbs::Fraction k,
                   const Quotient_Limit& limit, Decimal& result) {
  const Told_Rounding rounding = quotient.rounding(x, k, limit);
  if (rounding == Told_Rounding::in_doubt) return false;
  const bool runs_over = rounding == Told_Rounding::is_raised && quotient.raise(limit.kept);
  quotient.write(limit.kept, result.digits);
  result.power_of_ten =
      static_cast<std::int64_t>(runs_over) - static_cast<std::int64_t>(limit.kept);
  return true;
}

// Operands and quotient of one limb each.
bool Divide_In_Words(std::string_view X, std::string_view k, const Quotient_Limit& limit,
                     Decimal& result) {
  const Limb divisor = limbs::Read(k) * limbs::Ten_To(limbs::digits - k.size());
  if (!Told_Quotient::Begins_Beyond_Doubt({&divisor, 1}, limit.p)) return false;
  Limb dividend = limbs::Read(X) * limbs::Ten_To(limbs::digits - X.size());
  const bool leads = dividend >= divisor;
  Told_Quotient quotient(limbs::digits);
  const Limb power = leads ? limbs::base / 10 : limbs::base;
  *quotient.data() = static_cast<Limb>(limbs::Wide{dividend} * power / divisor);
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
bool Divide_In_Pairs(std::string_view X, std::string_view k, const Quotient_Limit& limit,
                     Decimal& result) {
  const limbs::Pair divisor = Read_Pair(k);
  const std::array<Limb, 2> divisor_limbs{divisor.high, divisor.low};
  const limbs::Fraction d{divisor_limbs.data(), divisor.low == 0 ? 1U : 2U};
  if (!Told_Quotient::Begins_Beyond_Doubt(d, limit.p)) return false;
  limbs::Pair dividend = Read_Pair(X);
  const bool leads = dividend.high > divisor.high ||
                     (dividend.high == divisor.high && dividend.low >= divisor.low);
  Limb further = 0;
  if (leads) {
    constexpr Limb tenth = limbs::base / 10;
    further = dividend.low % 10 * tenth;
    dividend = {dividend.high / 10, dividend.high % 10 * tenth + dividend.low / 10};
  }
  Told_Quotient quotient(2 * limbs::digits);
  const limbs::Pair pair = limbs::Divide_Pairs(dividend, further, divisor);
  quotient.data()[0] = pair.high;
  quotient.data()[1] = pair.low;
  if (!Write_Rounded(quotient, {&dividend.high, 1}, d, limit, result)) return false;
  if (leads) ++result.power_of_ten;
  return true;
}

bool Divide_By_Limbs(std::string_view X, std::string_view k, const Quotient_Limit& limit,
                     Decimal& result) {
  const std::size_t room = limit.most_limbs();
  if (std::min(limbs::Count_For(k.size()), room) > limbs::most_quotient_limbs) return false;
  const Operands operands(X, k, room);
  if (!Told_Quotient::Begins_Beyond_Doubt(operands.k(), limit.p)) return false;
  Told_Quotient quotient(limit.p + Told_Quotient::more_digits);
  quotient.divide(operands.x(), operands.k());
  if (!Write_Rounded(quotient, operands.x(), operands.k(), limit, result)) return false;
  if (operands.leads()) ++result.power_of_ten;
  return true;
}

}  // namespace

bool Quick_Quotient(std::string_view X, std::string_view k, std::int32_t sd, Decimal& quotient) {
  Expects(Are_Significant(X) && Are_Significant(k));
  if (sd + static_cast<std::int32_t>(division_guard_digits) < least_quick_precision) {
    return false;
  }
  Quotient_Limit limit(static_cast<std::size_t>(sd));
  const auto length = static_cast<std::int64_t>(X.size()) - static_cast<std::int64_t>(k.size());
  const std::size_t longest = std::max({X.size(), k.size(), limit.p + Told_Quotient::more_digits});
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
