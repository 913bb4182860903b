// What the logarithms and the exponential begin and end with.
#pragma once

#include <cstdint>
#include <string_view>

#include "arith/operation/step_number.h"
#include "arith/operation/steps.h"
#include "host/host_value.h"

namespace quorvex {

/// The number in normal form with its sign, or the token of what is none. Fails with type_mismatch
/// for a value that has no text.
NumberText Normal_Form(const HostValue& num);

/// Cuts a value to the limit of the call, in the notation that it asks for. Tokens stay. Fails with
/// type_mismatch for an option that can't be read.
NumberText Finish(const Step_Number& value, const HostValue& exponential_notation,
                  const HostValue& maxSD);

/// ln 2 as it is served. Zeros behind its decimals would keep it from the limbs.
Step_Number Number_Of_Ln2(std::string_view text);

/// 2 to the power of a whole number of 0 or more, at the limit of the steps.
Step_Number Two_To(std::int32_t exponent, const Steps& steps);

/// True where a series is to end after the term: its power of ten is `last` or less. A negative
/// term never ends one: its power is taken from its text, where the minus counts as a digit before
/// the separator.
bool Ends_Series(const Step_Number& term, std::int64_t last);

}  // namespace quorvex
