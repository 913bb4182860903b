#include "arith/division/told_rounding.h"

#include <cmath>

#include "expects.h"

namespace quorvex {

// Which digits the definition gives.
//
// Let p be the digits that are kept and three more, and N the length of k, without the zeros at its
// end. The p digits of the reciprocal are (10^s - g) / k, s = p + N - 1, where g is what 10^s
// leaves of k, or k itself if that is nothing (quick_reciprocal.cpp); or they are one less, so that
// k comes to g, but only for N > p - 2 where what follows them begins with two zeros. So X / k
// loses X g / (k 10^s), which is g/k times what the leading digits of X, with the point behind the
// first one, come to as units of digit p of the quotient. (A tenth of that where the leading digits
// of X are not below those of k: the quotient's first digit then stands one place higher.) So
// digits p - 2 to p of X / k, with what follows, tell the rounding mostly for any g/k; and where
// they don't, g/k comes from digits p + 1, p + 2 ... of 1/k.

std::optional<Bounds> Lost_Part(double behind, double error, const Loss& loss) {
  constexpr double one_hundredth = 0.011;  // and more than floats are wrong by
  constexpr double slip = 1e-9;
  const double least = loss.may_be_double ? one_hundredth : error + slip;
  if (behind < least || behind + error + slip >= 1) return std::nullopt;
  return Bounds{behind - slip, behind + error + slip};
}

// Division rounds by its three guard digits: half up by the first of them; but zeros at the end
// bring the rounding as many digits down, and what is then raised is cut off, unless it carries. So
// numbers below 500 stay, those from 950 on are raised, and between them those that end in a 0
// stay.
Told_Rounding Round_Between(double low, double high) {
  Expects(low > -50 && low <= high);
  if (high < 501) return Told_Rounding::stays;
  if (low >= 950) return Told_Rounding::is_raised;
  if (low < 500 || high >= 950) return Told_Rounding::in_doubt;
  const double tens = std::floor(low / 10) * 10;
  if (low >= tens + 1 && high < tens + 10) return Told_Rounding::is_raised;
  return high < tens + 1 ? Told_Rounding::stays : Told_Rounding::in_doubt;
}

}  // namespace quorvex
