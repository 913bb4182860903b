#include "arith/fractions/fraction_scale.h"

#include <algorithm>
#include <cstddef>

#include "expects.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/operand.h"
#include "text/primitives.h"

namespace quorvex {
namespace {

// Characters before the separator, and digits behind it: the sign counts, and the zeros at the
// left, which a `Decimal` doesn't know of.
struct Places {
  std::size_t before = 0;
  std::size_t decimals = 0;
};

Places Places_Of(const NumberText& number) {
  const std::size_t place = number.find(Decimal_Separator());
  if (place == NumberText::npos) return {};
  return {place, number.size() - place - Decimal_Separator().size()};
}

void Add_Zeros(NumberText& number, std::size_t count) {
  Require_Memory(static_cast<double>(count));
  number.append(count, '0');
}

[[maybe_unused]] bool Is_Plain(std::string_view number) {
  Decimal_Parts parts;
  return Split_Decimal(Strip_Sign(number), parts);
}

}  // namespace

Scaled_Fraction Scale_To_Whole(const NumberText& N, const NumberText& D) {
  Expects(Is_Plain(N) && Is_Plain(D));
  const Places n = Places_Of(N);
  const Places d = Places_Of(D);
  Scaled_Fraction scaled{N, D, std::max(n.decimals, d.decimals)};
  Remove_Decimal_Separator(scaled.A);
  Remove_Decimal_Separator(scaled.B);
  if (d.decimals >= n.decimals) {
    Add_Zeros(scaled.A, d.decimals - n.decimals);
  } else if (d.decimals == 0) {
    Add_Zeros(scaled.B, n.decimals);
  } else if (d.before >= n.before) {
    Add_Zeros(scaled.B, d.before - n.before);
  } else {
    throw Run_Time_Failure(Failure_Number::invalid_call,
                           "The numerator has more digits before and behind its separator.");
  }
  return scaled;
}

}  // namespace quorvex
