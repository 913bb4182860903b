// The type library that the module carries.
#pragma once

#include "com.h"

namespace quorvex::windows {

/// The description of the interface, or of a record; null where it can't be had. Late-bound calls
/// don't need it.
Com_Pointer<ITypeInfo> Description_Of(const GUID& guid);

HRESULT Register_Type_Library();
/// One that isn't registered is no failure.
HRESULT Unregister_Type_Library();

}  // namespace quorvex::windows
