// What the registry knows of the class.
#pragma once

#include "host/platform/windows_api.h"

namespace quorvex::windows {

HRESULT Register_Class();
HRESULT Unregister_Class();

}  // namespace quorvex::windows
