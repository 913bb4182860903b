#include "arith/division/told_rounding.h"

#include <cmath>

#include "expects.h"

namespace quorvex {

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
