// For hosts that unload the library before their process ends.
#pragma once

#include "host/export.h"

namespace quorvex {

/// Whether something would still come back to the library's code: a timer that is armed, a
/// description of the functions that is under way, or a form that is open.
QUORVEX_API bool Shell_Is_Busy();

/// Disarms the timer and lets go of everything that instances of the class share: forms, their
/// face, the host's application. An instance that is made later begins anew. Fails with
/// invalid_call, and changes nothing, from within a description of the functions or a form.
QUORVEX_API void Shell_Shut_Down();

}  // namespace quorvex
