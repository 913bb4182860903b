// The exported interface as data: what the command line, the batch protocol, the reference and the
// adapters of hosts are driven by.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "frame/rows/method.h"
#include "host/export.h"

namespace quorvex {

/// All public methods, in the order of the class.
QUORVEX_API std::span<const Method> Catalogue();

/// The method of that name, in any case of letters; null if there is none.
QUORVEX_API const Method* Find_Method(std::string_view name);

/// Calls a method. Arguments left out at the end are missing; there must be no more than the method
/// has parameters (std::invalid_argument). A method's `Run_Time_Failure` is let through, and memory
/// that can't be had becomes one, number 7.
QUORVEX_API Call_Result Invoke(cls_Quorvex& engine, const Method& method,
                               std::vector<HostValue> arguments);

/// The same on the caller's own values, one for each parameter, no more and no fewer. What the
/// method changes of those that are passed in and out stands there afterwards; all others stay as
/// they are.
QUORVEX_API Call_Result Invoke_In_Place(cls_Quorvex& engine, const Method& method,
                                        std::span<HostValue> arguments);

}  // namespace quorvex
