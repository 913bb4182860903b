// The whole part of a number.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

/// The worker of `qvxINT`: the greatest whole number that is not above `num`, all its digits,
/// formatted. "0" for empty text. Whatever is no number gives "#VALUE!", a token as well: callers
/// tell by it that no whole number came out, and not why. Fails with type_mismatch for an option
/// that can't be read.
NumberText Int_Function(std::string_view num, const Format_Arguments& format = {});

/// The worker of `qvxTRUNC`: `num` cut to a count of decimal places, towards zero, as
/// `Round_Function` rounds down. Otherwise as `Int_Function`; fails too for a count that is no
/// number.
NumberText Trunc_Function(std::string_view num, const HostValue& num_digits = Missing,
                          const Format_Arguments& format = {});

}  // namespace quorvex
