// Fractions in lowest terms.
#pragma once

#include <string_view>

#include "host/host_value.h"

namespace quorvex {

/// A reduced fraction, and by what it was reduced. After a failure all three hold the same token.
struct type_Fraction {
  NumberText Numerator;
  NumberText divisor;
  NumberText Reduced_By;
};

struct Reduction_Options {
  /// Takes the minus off both, or moves it from the divisor to the numerator.
  bool simplify_signs = false;
  /// Also where the numerator becomes larger than it was.
  bool always_simplify = false;
};

/// Reduces a fraction of two decimals, which are scaled to whole numbers first. 0 and any number
/// reduce by that number. Two equal numbers of ten characters or more stay unreduced, as they were
/// scaled. No limit of digits applies: the whole numbers are reduced exactly, whatever their
/// length.
///
/// A token for what is no number. Fails with invalid_call where both have decimals, the numerator
/// more, and its separator stands further to the right.
type_Fraction Reduce_Fraction(std::string_view numerator, std::string_view divisor,
                              const Reduction_Options& options);

}  // namespace quorvex
