// Names of methods and their parameters, as late-bound callers look them up.
#pragma once

#include <span>

#include "com.h"

namespace quorvex::windows {

/// The first name is the method's, the others are those of its parameters, in any case of letters.
/// Fails with a `Refused_Call` where one is unknown, after all that are known have been found.
void Find_Ids(std::span<const LPOLESTR> names, DISPID* ids);

}  // namespace quorvex::windows
