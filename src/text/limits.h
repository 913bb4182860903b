// The limit of digits that an argument asks for.
//
// `Default_MaxSD` stands in for a missing one everywhere. Apart from that readers differ, and
// worksheets show it:
//
// | reader                 | blank, empty text | above the ceiling | what is no number       |
// |------------------------|-------------------|-------------------|-------------------------|
// | `Restrictionator`      | read as numbers   | the ceiling       | fails                   |
// | `Limit_As_Given`       | not read          | not read          | not read                |
// | `Limit_As_Number`      | read as numbers   | stays             | fails                   |
// | `Working_Limit`        | read as numbers   | the ceiling       | fails                   |
// | `Limit_Unless_Blank`   | the default       | the ceiling       | fails                   |
// | `Whole_Limit`          | the default       | stays             | nothing, if it is text  |
// | `Constant_Digits`      | read as numbers   | the ceiling       | the ceiling, if text    |
//
// To read is to take as the host does: blank is 0, empty text no number. Failures are type_mismatch
// for what is no number, and overflow for what is too large for one.
#pragma once

#include <cstdint>
#include <optional>

#include "host/host_value.h"

namespace quorvex {

/// For logarithms and the exponential, which read it in the course of their work.
HostValue Limit_As_Given(const HostValue& maxSD);

/// For remainders and the units of angles.
double Limit_As_Number(const HostValue& maxSD);

/// For the functions of angles. There is no lower bound.
double Working_Limit(const HostValue& maxSD);

/// For square roots.
double Limit_Unless_Blank(const HostValue& maxSD);

/// For probabilities. Fails with overflow beyond 32 bits.
std::optional<std::int32_t> Whole_Limit(const HostValue& maxSD);

/// For the digits of pi and e.
double Constant_Digits(const HostValue& digits);

/// A count of digits. Text that is no number counts as above all numbers.
double Count_Of_Digits(const HostValue& digits);

}  // namespace quorvex
