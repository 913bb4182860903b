// The arguments of a call, in the order of the method's parameters, wherever they come from.
#pragma once

#include <initializer_list>
#include <vector>

#include "com.h"
#include "frame/catalogue.h"

namespace quorvex::windows {

/// The caller's values; they stay the caller's.
using Arguments = std::vector<VARIANT>;

/// Those of a late-bound call: positional ones stand in reverse behind the named ones, and what is
/// left out at the end isn't there. A `Refused_Call` tells what doesn't fit. The elements of a
/// variable list stand in one value or are the arguments themselves, in which case `gathered` owns
/// the array that is made of them.
Arguments Late_Bound_Arguments(const Method& method, const DISPPARAMS& given, Variant& gathered);

/// Calls the method, and writes back what it has changed of arguments that are passed in and out.
Call_Result Call(cls_Quorvex& engine, const Method& method, const Arguments& arguments);

// An argument of a call through the interface, as a value that refers to it. Where the caller
// leaves a typed one out it arrives as null or as the default of its type.
VARIANT Argument(VARIANT* value);
VARIANT Argument(const VARIANT& value);
VARIANT Argument(BSTR* text);
VARIANT Argument(LONG number);
VARIANT Argument(LONG* number);
VARIANT Argument(double* number);
VARIANT Argument(VARIANT_BOOL* truth);
VARIANT Argument(SAFEARRAY** list);
VARIANT Argument(IDispatch** object);
VARIANT Optional_Argument(VARIANT* value);
VARIANT Optional_Argument(BSTR* text);
VARIANT Optional_Argument(double* number);
VARIANT Optional_Argument(VARIANT_BOOL* truth);

}  // namespace quorvex::windows
