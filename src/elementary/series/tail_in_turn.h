// The long tail of a series of up to some hundred digits, term by term in binary words.
#pragma once

#include <optional>

#include "arith/operation/step_number.h"
#include "elementary/series/series_rule.h"

namespace quorvex {

/// The sum that exact steps arrive at, as `Shortened_Series` says; nothing where a digit is in
/// doubt.
///
/// Numbers are held in binary words, in units of the sum's last place, with one word for their
/// fraction, u = 2^-60. Rows have w words, which loose quotients make up to three times as large;
/// all that is cut off makes numbers too small. The first power is wrong by less than 3 u. A step
/// takes what a power is wrong by times a half at most, and adds less than 6 u for the factor,
/// 3 w + 2 for the product and 3 for a quotient: less than 6 w + 22 in all. A term, divided once
/// more, is wrong by less than 6 w + 25.
std::optional<Step_Number> Sum_In_Turn(const Series_Tail& tail);

}  // namespace quorvex
