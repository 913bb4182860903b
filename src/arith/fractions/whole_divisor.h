// The greatest common divisor of two whole numbers.
#pragma once

#include "host/host_value.h"

namespace quorvex {

struct Common_Divisor {
  bool are_equal = false;  // the two have the same magnitude, and no divisor is given
  NumberText divisor;      // or the token of a step
};

/// How remainders are found: one after the other as text, or many at once where none is cut.
enum class Remainders { quick, by_text };

/// Euclid's algorithm on whole numbers other than 0, which may have a sign and zeros at the left.
/// Remainders take the sign of what they are divided by, and are rounded to the limit and one
/// digit more.
Common_Divisor Divisor_Of(const NumberText& A, const NumberText& B, double maxSD,
                          Remainders remainders = Remainders::quick);

}  // namespace quorvex
