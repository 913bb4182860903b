#include "elementary/series/series.h"

#include <cmath>

#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/guard_digits.h"

namespace quorvex {
namespace {

// Counts with no more digits than sums and products keep are exact, and floats count up to here
// without a loss.
double Exact_Below(double limit) {
  constexpr double longest = 15;
  return limit < -1 ? 0 : std::pow(10, std::fmin(Digits_Of_Result(std::floor(limit)), longest));
}

}  // namespace

Series_Counter::Series_Counter(double start, const Steps& steps)
    : k_(start), steps_(steps), exact_below_(Exact_Below(steps.limit())) {}

void Series_Counter::step() {
  if (k_ + 2 < exact_below_) {
    k_ += 2;
  } else {
    k_ = To_Number(steps_.sum(value(), Step_Number(2)).text());
  }
}

Step_Number Series_Counter::next() const {
  return k_ + 1 < exact_below_ ? Step_Number(k_ + 1) : steps_.sum(value(), Step_Number(1));
}

Step_Number Series_Counter::product_with_the_one_before() const {
  const double product = k_ * (k_ - 1);
  if (product < exact_below_) return Step_Number(product);
  return steps_.product(value(), steps_.difference(value(), Step_Number(1)));
}

// The limit is read as its text has it, with 15 digits, and its sign is forced.
Series_End::Series_End(double limit) : lowest_power_(-std::fabs(limit)) {
  constexpr double plain_whole_numbers = 1e15;
  if (!(std::fabs(limit) < plain_whole_numbers && std::trunc(limit) == limit)) {
    lowest_power_ = -std::fabs(To_Number(Number_To_Text(limit)));
  }
}

std::int64_t Series_End::last_power() const {
  constexpr double lowest = -1e15;  // of those that can be counted
  return static_cast<std::int64_t>(std::fmax(lowest_power_, lowest)) - 1;
}

bool Series_End::is_reached(const Step_Number& term) const {
  Yield();
  if (term.is_token() || term.is_zero()) {
    throw Run_Time_Failure(Failure_Number::too_complex,
                           "The terms of a series have become 0, or no number, before it has come "
                           "to its end; it would never end.");
  }
  return static_cast<double>(term.leading_power()) < lowest_power_;
}

}  // namespace quorvex
