// The order of two numbers held as text, at any length.
#pragma once

#include <compare>
#include <optional>
#include <string_view>

#include "host/host_value.h"
#include "text/operand.h"

namespace quorvex {

/// Compares by value. The answer is a boolean: true if `testEqual` and the numbers are equal, or
/// `testGreater` and the first is greater. Or it is a token as text: one that an operand is
/// ("#VALUE!" before "#NUM!" before "#DIV/0!"), and "#NUM!" for an operand that is no number.
HostValue Compare_Numbers(std::string_view number1, std::string_view number2, bool testEqual,
                          bool testGreater);

// The same for callers to whom a token is no answer: they fail with type_mismatch.
bool Is_Equal(std::string_view a, std::string_view b);
bool Is_Greater(std::string_view a, std::string_view b);
bool Is_At_Least(std::string_view a, std::string_view b);

/// Reads a number into `number`, which looks into `text`. False for what `Compare_Numbers` takes
/// for no number, a token among it. Fails with out_of_memory for one that has no room, which is a
/// number all the same.
bool Read_For_Comparison(std::string_view text, std::optional<Operand>& number,
                         Exponent_Zeros zeros = Exponent_Zeros::all);

/// The order of two digit strings of like scale, without leading zeros: the longer is the greater,
/// and at equal lengths the first different character decides.
std::strong_ordering Order_Of_Digits(std::string_view text1, std::string_view text2);

/// The same as the answer to a question.
bool Compare_Digit_Strings(std::string_view text1, std::string_view text2, bool orEqual,
                           bool orGreater);

/// The worker of `qvxSIGN`: the number 1, 0 or -1; "0" as text for blank and empty text, "#VALUE!"
/// for what is no number. The sign is read from the first character of the value as it came.
HostValue Sign_Function(const HostValue& num);

/// True if a result is boolean true and no token.
bool Is_True(const HostValue& result);

}  // namespace quorvex
