// A reduced fraction as a worksheet shows it.
#pragma once

#include <optional>
#include <string_view>

#include "arith/fractions/reduce_fraction.h"
#include "host/host_value.h"

namespace quorvex {

/// Which part of a fraction is asked for; the first that is true, and all where none is.
struct Fraction_Parts {
  bool numerator = false;
  bool divisor = false;
  bool reduced_by = false;
};

/// One part as text; or an array of four rows and columns, the first of which both hold the
/// fraction as text, its numerator, its divisor and what it was reduced by, and the rest of which
/// is empty text. An empty `separator` is a slash.
HostValue Shown_Fraction(type_Fraction fraction, const Fraction_Parts& parts,
                         std::optional<std::string_view> separator);

}  // namespace quorvex
