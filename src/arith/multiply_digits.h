// Products of digits, which the separate library of products forms.
#pragma once

#include <string>

#include "host/host_value.h"

namespace quorvex {

/// The product of two digit strings: "0" if either is empty or exactly "0", otherwise digits with
/// no leading zero. "#VALUE!" for any failure: the library can't be found, an operand holds a
/// character that is no digit, there is not enough memory.
NumberText Multiply_Digits(const NumberText& op1, const NumberText& op2);

}  // namespace quorvex
