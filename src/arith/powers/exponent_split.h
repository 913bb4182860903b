// The split of an exponent that a power is worked out by.
#pragma once

#include <cstdint>
#include <optional>

#include "host/host_value.h"

namespace quorvex {

/// An exponent as A times B plus C.
struct Exponent_Split {
  NumberText A;
  NumberText B;
  NumberText C;
};

/// The split of a whole number above 3 that needs the fewest multiplications among those with A a
/// half, a quarter, an eighth ... of it: 1000 is 31 * 32 + 8. The search ends where a split costs
/// no less than the one before.
///
/// The search calculates at a limit of `maxSD` digits, as all steps of a power do. Where the limit
/// is shorter than the exponent it finds another split, C can be negative, and the sum can miss the
/// exponent. Fails with type_mismatch where the search comes to a token.
Exponent_Split Split_Exponent(const NumberText& n, double maxSD);

/// The same, always by steps at the limit.
Exponent_Split Split_Exponent_By_Steps(const NumberText& n, double maxSD);

/// The same of an exponent that a machine word holds, for limits at which its division is exact.
struct Short_Split {
  std::uint64_t A;
  std::uint64_t B;
  std::uint64_t C;
};

Short_Split Split_Exponent(std::uint64_t n);

/// The exponent as such a word, if it is one above 0 and the limit allows it.
std::optional<std::uint64_t> Exactly_Split(const NumberText& n, double maxSD);

}  // namespace quorvex
