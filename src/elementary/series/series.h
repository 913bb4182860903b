// The counter and the end that the series of all elementary functions share.
#pragma once

#include <cstdint>

#include "arith/operation/steps.h"

namespace quorvex {

/// True for 0 as formatting writes it: other spellings, such as *0.0*, may be answered differently.
inline bool Is_Plain_Zero(const Step_Number& x) {
  return x.is_in_limbs() && x.is_zero();
}

/// The counter k of a series that takes every other number. It is a float stepped by an addition at
/// the limit: a limit of a digit or two rounds it, and then it may stop counting.
class Series_Counter {
 public:
  Series_Counter(double start, const Steps& steps);

  /// k becomes k + 2.
  void step();

  /// The count without its fraction, which limits of three digits or more leave it none of.
  std::uint64_t whole() const { return static_cast<std::uint64_t>(k_); }

  // As operations at the limit give them.
  Step_Number value() const { return Step_Number(k_); }
  Step_Number next() const;                         // k + 1
  Step_Number product_with_the_one_before() const;  // k (k - 1)

 private:
  double k_;
  Steps steps_;
  double exact_below_;
};

/// Tells when a series has ended.
class Series_End {
 public:
  explicit Series_End(double limit);

  /// True if the leading digit of the term stands below the place that the limit names. The size of
  /// the sum plays no part. Yields. Fails with too_complex for a term that is 0 or a token: so are
  /// all that follow, and none of them would end the series.
  bool is_reached(const Step_Number& term) const;

  /// The highest power of ten whose terms end a series, for limits that are whole numbers.
  std::int64_t last_power() const;

 private:
  double lowest_power_;
};

}  // namespace quorvex
