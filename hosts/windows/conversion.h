// Values of automation as the engine takes them, and back.
#pragma once

#include "com.h"
#include "host/host_value.h"

namespace quorvex::windows {

/// References are followed, and of an object its own value is read, as of a range its cells.
/// Decimals, currency and 64-bit integers keep all digits: as text where a 64-bit float has not
/// enough of them. A date is its serial number. An array of two dimensions is an array, one of one
/// dimension a list, whatever its elements are.
///
/// Fails with 94 for Null, 91 for no object, and 13 for what has no such form, with the number of
/// the object's own failure where that refuses.
HostValue From_Variant(const VARIANT& value);

/// The caller frees what it gets. A missing value becomes an omitted argument.
VARIANT To_Variant(const HostValue& value);

/// Puts a value where a caller's argument refers to; an argument without a reference is left alone.
void Write_Back(const HostValue& value, const VARIANT& argument);

}  // namespace quorvex::windows
