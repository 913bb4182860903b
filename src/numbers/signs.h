// Numbers with another sign.
#pragma once

#include <string_view>

#include "host/host_value.h"
#include "text/options.h"

namespace quorvex {

// What is no number gives the token of `Clean_Up_Number`, so that a token stays itself. All digits
// are kept. An option that can't be read fails with type_mismatch.

/// The worker of `qvxABS`: the number without its sign. Empty text is 0.
NumberText Abs_Function(std::string_view num, const Format_Arguments& format = {});

/// The worker of `qvxNEG`: the number with a negative sign, whichever it had: -5 stays -5. The
/// folding of angles and the signs of their functions rely on that. Empty text gives "VALUE!";
/// without the mark of a token no later step takes it for an error.
NumberText Neg_Function(std::string_view num, const Format_Arguments& format = {});

/// The worker of `qvxCHANGESIGN`: the number with the opposite sign. Empty text is 0.
NumberText ChangeSign_Function(std::string_view num, const Format_Arguments& format = {});

}  // namespace quorvex
