// Whole powers as chains of products, each of which is rounded.
#pragma once

#include "host/host_value.h"
#include "text/decimal.h"

namespace quorvex {

/// A power of a number other than 0, or the token of the base. The exponent is a whole number;
/// those above 3 are split, and every product is rounded at `maxSD`, or at so many guard digits
/// more where nothing is split and in the reciprocal of the base. Fails with too_complex for an
/// exponent whose splits are split more than a thousand deep.
Decimal Whole_Power(const Decimal& base, const NumberText& exponent, double maxSD,
                    double working_digits);

}  // namespace quorvex
