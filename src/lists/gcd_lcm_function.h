// Greatest common divisors and least common multiples of lists.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// What is done with the decimals of an element. Numbers taken whole count as they are, also where
/// they have a sign or are none.
enum class Element_Form { truncated, whole };

/// The greatest common divisor; empty text for a list without numbers. Truncated elements that are
/// no numbers are passed over, and a negative one gives "#NUM!" at once.
NumberText GCD_Function(const List& list, Element_Form form);

/// The least common multiple. A negative element gives "#NUM!" at once, in both forms.
NumberText LCM_Function(const List& list, Element_Form form);

}  // namespace quorvex
