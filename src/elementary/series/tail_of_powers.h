// The long tail of a series whose powers are not divided themselves, its terms in groups.
#pragma once

#include <optional>

#include "arith/operation/step_number.h"
#include "elementary/series/series_rule.h"

namespace quorvex {

/// The sum that exact steps arrive at, as `Shortened_Series` says, for rules without a divisor of
/// powers. Nothing where a digit is in doubt.
///
/// As in `tail_in_groups.h`, the sum of a group of terms is its first power G times a sum of powers
/// b of the factor, and of each term alone only the fraction is formed, by which it is rounded.
/// Terms with small divisors are divided together: those of k and k' by K = k k', and then k' times
/// one and k times the other. So a few terms have one division, that of their sum; and for their
/// fractions, one of G, as the fraction of G b / k is that of k' (G / K) b.
///
/// Numbers are held in binary words, in units of the sum's last place, with one word for their
/// fraction, u = 2^-60. A row of G has w words, and a fraction in a product with it as many. What
/// is cut off comes together as follows; all of it makes numbers too small.
///
/// - The first power b is wrong by less than 2 units of its last place, and each further one is the
///   product of the last and the first, both up to a half: so it is wrong by less than half of
///   what the last was, 1 and w + 2, and all are by less than 2 w + 6. For later groups they are
///   cut short by another unit.
/// - G is wrong by less than 3 u, and later by less than a quarter of what it was, since it is
///   multiplied by a power b of two or more, 2 w + 7 for b, and w + 2: less than 4 w + 12.
/// - G / K is wrong by less than 4 w + 13, its lowest word in a product with a b by less than half
///   of that, 2 w + 7, and 2 w + 2: less than 6 w + 16. A fraction is wrong by that times what the
///   divisors of the others are, below 2^31.
/// - A group of m terms has a sum of b that is wrong by less than m (2 w + 8), and its product with
///   G, in u, by less than 4 w + 12 for G, that, and w + 2. For N terms in groups of two and more
///   that is less than (N + m) (6 w + 16), next to nothing.
std::optional<Step_Number> Sum_Of_Powers(const Series_Tail& tail);

}  // namespace quorvex
