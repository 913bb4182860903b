// The long tail of a series of some hundred digits, term by term in binary words.
#pragma once

#include <optional>

#include "arith/operation/step_number.h"
#include "elementary/series/series_rule.h"

namespace quorvex {

/// The sum that exact steps arrive at, as `Shortened_Series` says; nothing where a digit is in
/// doubt.
///
/// All numbers are held in units of the sum's last place, with 64 bits for the fraction. A step
/// cuts off less than a unit of 2^-64 for each word and six more; the conversions at the start less
/// than 20. Since each power is at most half the one before, all that powers bring along is no more
/// than twice that of one step.
std::optional<Step_Number> Sum_In_Turn(const Series_Tail& tail);

}  // namespace quorvex
