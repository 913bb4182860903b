// The Poisson distribution.
#pragma once

#include "host/host_value.h"

namespace quorvex {

/// The probability of `target_num` events where `average_num` are to be expected, or of so many at
/// most: e^-average * average^k / k!, by its definition, every term anew. All steps are taken at
/// the limit (`Default_MaxSD` where missing or empty) but for the factorials, which are taken at
/// the default one whatever the limit. A fractional target is cut; "TRUE" and "FALSE" count as 0.
///
/// "#NUM!" for a target or an average that begins with a minus or a parenthesis, for a target
/// above 9273 (see `Fact_Function`) and for more digits than the stored e has. "#VALUE!" for other
/// text that is no number, for truth values that are not of that kind (`is_cumulative` must be
/// given), and for digits that are no number. `restrict_input_lengths`, true where missing, as for
/// powers. Fails with type_mismatch for arguments without text or number, with overflow for a limit
/// beyond 32 bits, with invalid_call for one below -1, and with too_complex for a sum whose count
/// of events comes to rest at so few digits.
NumberText Poisson_Function(const HostValue& target_num, const HostValue& average_num,
                            const HostValue& is_cumulative, const HostValue& exponential_notation,
                            const HostValue& maximum_significant_digits,
                            const HostValue& restrict_input_lengths);

}  // namespace quorvex
