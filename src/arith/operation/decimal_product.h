// Products of decimals at a limit, for long chains of them in which the zeros are a count.
#pragma once

#include "text/decimal.h"

namespace quorvex {

/// The product as `Do_Operation` gives it at the limit: rounded to two digits more. The factors
/// have no zeros at either end. A token is handed on.
Decimal Product(const Decimal& a, const Decimal& b, double limit);

}  // namespace quorvex
