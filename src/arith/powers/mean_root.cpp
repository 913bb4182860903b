#include "arith/powers/mean_root.h"

#include <utility>

#include "arith/operation/steps.h"
#include "arith/powers/root_pair.h"
#include "host/conversions.h"
#include "host/platform.h"
#include "host/run_time_failure.h"
#include "text/tokens.h"

namespace quorvex {
namespace {

constexpr int stalls_before_end = 3;
constexpr int differences_before_stalls = 2;

// Whether the difference is less than one unit of the last of so many digits of the value.
bool Is_Below_Digits(const Step_Number& difference, const Step_Number& value, double count) {
  return difference.is_zero() ||
         static_cast<double>(difference.leading_power()) <=
             static_cast<double>(value.is_zero() ? -1 : value.leading_power()) - Nearest(count);
}

// Counts how often the difference of the two has not become less.
class Stalls {
 public:
  /// The count, if the round stalls; otherwise 0.
  int see(const Step_Number& difference) {
    ++seen_;
    const bool stalls = seen_ > differences_before_stalls && Is_At_Least(difference, last_);
    last_ = difference;
    return stalls ? ++count_ : 0;
  }

 private:
  int seen_ = 0;
  int count_ = 0;
  Step_Number last_{0};
};

// The two values of a round.
struct Round_Values {
  Step_Number quotient;
  Step_Number mean;
};

Step_Number Distance(const Step_Number& a, const Step_Number& b, const Steps& steps) {
  Step_Number difference = steps.difference(a, b);
  if (difference.is_negative()) difference.negate();
  return difference;
}

// False where a step is a token.
bool Take_Round(const Step_Number& radicand, const Steps& steps, Round_Values& values) {
  values.quotient = steps.quotient(radicand, values.mean);
  if (values.quotient.is_token()) return false;
  steps.add(values.mean, values.quotient);
  if (values.mean.is_token()) return false;
  steps.divide(values.mean, Step_Number(2));
  return !values.mean.is_token();
}

bool May_Settle(const Round_Values& values, double maxSD) {
  return !values.quotient.is_negative() && May_Be_Alike(values.quotient, values.mean, maxSD);
}

Decimal Token_Of_Round(const Round_Values& values) {
  return Decimal_Token((values.quotient.is_token() ? values.quotient : values.mean).text());
}

}  // namespace

Decimal Mean_Root(const Step_Number& radicand, const Step_Number& start, double maxSD) {
  const Steps steps(maxSD + 1);
  Round_Values values{Step_Number(0), start};
  Stalls stalls;
  for (;;) {
    Yield();
    if (!Take_Round(radicand, steps, values)) return Token_Of_Round(values);
    if (May_Settle(values, maxSD)) {
      Root_Pair pair(values.quotient, values.mean, maxSD);
      if (pair.settle()) return std::move(pair).root();
      // Limits below 0 and next to the ceiling can leave nothing.
      if (pair.is_empty()) {
        throw Run_Time_Failure(Failure_Number::type_mismatch, "A value of a root has no digits.");
      }
    }
    const Step_Number difference = Distance(values.quotient, values.mean, steps);
    if (difference.is_token()) return Decimal_Token(difference.text());
    const int count = stalls.see(difference);
    if (count < stalls_before_end) continue;
    // Neighbours that never meet have the root between them.
    if (Is_Below_Digits(difference, values.quotient, maxSD - 1)) {
      Root_Pair pair(values.quotient, values.mean, maxSD);
      pair.part();
      return std::move(pair).root();
    }
    if (count > stalls_before_end) return Decimal_Token(num_token);
  }
}

}  // namespace quorvex
