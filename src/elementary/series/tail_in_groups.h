// The long tail of a series of many digits, its terms in groups.
#pragma once

#include <optional>

#include "arith/operation/step_number.h"
#include "elementary/series/series_rule.h"

namespace quorvex {

/// The sum that exact steps arrive at, as `Shortened_Series` says, at a cost of a few passes over
/// the digits of each term and no product of its own. Nothing where a digit is in doubt.
///
/// What exact steps add is each term rounded to the last place of the sum. So the sum is wanted of
/// all terms as they are, which groups of them give with two products each, and of each term the
/// part that rounding takes off or adds: that is told by its fraction, behind the last place. A
/// power is the first of its group times a power of the factor, and of this product the digits of
/// the fraction alone are formed, in one pass.
///
/// Numbers are held in units of the sum's last place, with one limb for their fraction, e = 10^-18.
/// N is the count of all terms, m that of a group, and A how many limbs the group's first power G
/// has before the point. What is cut off comes together as follows.
///
/// - A power b of the factor has A + 1 limbs. One is the product of two others, both below 1, each
///   rounded: so the j-th is wrong by less than 2 j units of its last place, cut short for a later
///   group by one more, and divided by one more. Times G that is below (2 m + 2) e.
/// - G, divided in turn, is cut by less than a unit at each division and halved by it (but for
///   divisors of 1, which cut nothing): less than 2 e. Its product with the last b is rounded. So
///   every group adds less than (2 m + 5) e to what G is wrong by, 2 N + 5 N / m in all, and
///   7 N + 8 with a first group that is not full.
/// - A fraction leaves out less than (2 A + 6) e.
///
/// The fraction is wrong by less than (7 N + 2 m + 2 A + 20) e, and less than 10^-9 is asked for.
///
/// The sum of all terms takes a group's G times the sum of its b, divided: each of these is wrong
/// by what it is wrong by in a fraction at most, and by a unit for every division after it, which
/// the divisors halve. So it is wrong by N times that bound, and less than 10^-2 is asked for: it
/// is a whole number, once the parts that rounding takes off or adds are.
std::optional<Step_Number> Sum_In_Groups(const Series_Tail& tail);

}  // namespace quorvex
