// What the registry knows of the class.
#pragma once

#include <windows.h>

namespace quorvex::windows {

HRESULT Register_Class();
HRESULT Unregister_Class();

}  // namespace quorvex::windows
