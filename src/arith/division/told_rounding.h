// How division rounds a quotient that is known to lie within bounds.
#pragma once

namespace quorvex {

/// What becomes of the digits that are kept.
enum class Told_Rounding { stays, is_raised, in_doubt };

/// For a quotient whose digits go on, behind the kept ones, between `low` and `high`, counted in
/// units of the third of them: from -50 to 1000. Digits that are borrowed from round up to what
/// they were.
Told_Rounding Round_Between(double low, double high);

}  // namespace quorvex
